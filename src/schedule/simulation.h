// One walk through the working rows with a simulated clock and calendar: a test.
//
// The day is a chain of milestones (lunch, dinner, night), not a span of 24 hours: driving is cut so that an arrival
// falls on the next milestone, and an arrival near one counts as reaching it, from a third of the range before it to
// all of the range after it. Clock times are single-precision hundredths of an hour; sums and products run in double
// precision and are rounded when a variable takes them.
#pragma once

#include <functional>
#include <vector>

#include "schedule/working_rows.h"
#include "trip/totals.h"

namespace vanzer {

/// What a test goes by. Clock times and lengths are hundredths of an hour.
struct ParametriSimulazione {
    float oraColazione = 0; ///< activity starts
    float oraPranzo = 0;
    float durataPranzo = 0;
    float oraCena = 0;
    float durataCena = 0;
    float oraNotte = 0;
    float inizioVisita = 0;
    float fineVisita = 0;
    float oreVisitaGiorno = 0;
    float oreGuidaGiorno = 0;
    int riposoMinuti = 0;     ///< a break: hundredths, not minutes
    int riposoOre = 0;        ///< whole hours of travel before a break
    int riposoGiorno = 0;     ///< days of a long rest
    int riposoDopoGiorni = 0; ///< days of travel before it
    float oraInizioViaggio = 0;
    float giulianoInizio = 0; ///< Julian day
    int giorniDesiderati = 0; ///< 0: the walk goes to the end
    int range = 0;            ///< how near to a milestone counts as on it
    Medie medie{};
};

/// A row of the schedule, in numbers. Clocks and lengths are hundredths of an hour, days are Julian days.
struct RigaViandoria {
    enum class Tipo { Tratto, Sosta, Menzione, NuovoGiorno };
    /// Why a driven piece ended where it did.
    enum class Fine { Arrivo, Pranzo, Cena, Notte, Pausa };

    Tipo tipo = Tipo::Tratto;
    Fine fine = Fine::Arrivo;
    int lavoro = 0;      ///< index of the working row it comes from
    bool verso = false;  ///< on the way: the leg goes on behind this piece
    bool pranzo = false; ///< lunch, dinner, night follow this piece
    bool cena = false;
    bool notte = false;
    bool pausa = false;      ///< a break follows
    bool riposoDopo = false; ///< a long rest falls behind this row
    bool domani = false;     ///< the stop waited for the next day's visiting hours
    bool spezzata = false;   ///< the stop went on over more than one day
    int km = 0;
    int kmTotali = 0;
    float tempo = 0;        ///< of the piece
    float inizio = 0;       ///< the clock at which the piece or the stop begins
    float giornoInizio = 0; ///< the day of that
    float riposo = 0;       ///< length of the breaks that follow
    float ora = 0;          ///< the clock at the arrival, behind the stop, at the new start
    float giuliano = 0;     ///< the day of that
    float sosta = 0;        ///< length of the stop
    float sostaGuida = 0;   ///< length that the guide asks for
};

/// What the panel shows, hundredths of an hour and Julian days: refreshed behind each driven piece, so that later
/// stops don't count.
struct PannelloViandoria {
    float ora = 0; ///< arrival of the last piece
    float giuliano = 0;
    int kmTotali = 0;
    int traghetti = 0;
    std::array<int, 4> km{}; ///< by road type
};

struct Viandoria {
    enum class Esito {
        Completa,     ///< all rows were walked
        TroppiGiorni, ///< ended as soon as it passed the wanted days
        Interrotta
    };
    Esito esito = Esito::Completa;
    std::vector<RigaViandoria> righe;
    PannelloViandoria pannello;
    int giorni = 0; ///< days of the trip
    float ora = 0;  ///< clock at the end
    float giuliano = 0;
    int traghetti = 0;
};

/// Called before each working row with its number from 1 and the schedule so far; true asks to stop. A long rest can
/// still fall behind the last two rows written; outcome, days and the end's clock are not told before the end.
using FermaRiga = std::function<bool(int row, const Viandoria& soFar)>;

/// `coefficiente` stretches the guide's stops and nothing else. The new rows are written into the memory of earlier
/// ones that are done with.
[[nodiscard]] Viandoria simulate(const std::vector<RigaDiLavoro>& rows, const ParametriSimulazione& with,
                                 float coefficiente, const FermaRiga& stop = {},
                                 std::vector<RigaViandoria> memory = {});

} // namespace vanzer
