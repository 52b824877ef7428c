// SPDX-License-Identifier: MIT
// A simulated trip through the working rows, with a clock and a calendar. One run is called a test.
//
// The day is a chain of milestones: lunch, dinner, night. It isn't a span of 24 hours. A drive that would end after a
// milestone and its range is cut, so that it ends at the milestone. An arrival near a milestone counts as reaching it;
// near means from a third of the range before it to the whole range after it. Clock times are hundredths of an hour in
// single precision. Sums and products are computed in double precision and rounded when a variable stores them.
#pragma once

#include <functional>
#include <vector>

#include "schedule/working_rows.h"
#include "trip/totals.h"

namespace vanzer {

/// The parameters of a test. Clock times and lengths are hundredths of an hour.
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
    int riposoMinuti = 0;     ///< length of a break, hundredths of an hour in spite of the name
    int riposoOre = 0;        ///< whole hours of travel between breaks
    int riposoGiorno = 0;     ///< days of a long rest
    int riposoDopoGiorni = 0; ///< days of travel between long rests
    float oraInizioViaggio = 0;
    float giulianoInizio = 0; ///< Julian day of the start
    int giorniDesiderati = 0; ///< the test ends once it needs more days; 0 for no limit
    int range = 0;            ///< how near to a milestone counts as reaching it, hundredths of an hour
    Medie medie{};
};

/// A row of the schedule, in numbers. Clocks and lengths are hundredths of an hour, days are Julian days.
struct RigaViandoria {
    enum class Tipo { Tratto, Sosta, Menzione, NuovoGiorno };
    /// Why a driven piece ends.
    enum class Fine { Arrivo, Pranzo, Cena, Notte, Pausa };

    Tipo tipo = Tipo::Tratto;
    Fine fine = Fine::Arrivo;
    int lavoro = 0;      ///< index of its working row
    bool verso = false;  ///< the leg goes on after this piece
    bool pranzo = false; ///< lunch follows this piece; below, dinner and night
    bool cena = false;
    bool notte = false;
    bool pausa = false;      ///< a break follows
    bool riposoDopo = false; ///< a long rest follows this row
    bool domani = false;     ///< the stop had to wait for the next day's visiting hours
    bool spezzata = false;   ///< the stop took more than one day
    int km = 0;
    int kmTotali = 0;
    float tempo = 0;        ///< driving time of the piece
    float inizio = 0;       ///< clock at the start of the piece or stop
    float giornoInizio = 0; ///< day of that clock
    float riposo = 0;       ///< length of the breaks that follow
    float ora = 0;          ///< clock at the arrival, after the stop, or at the new start
    float giuliano = 0;     ///< day of that clock
    float sosta = 0;        ///< length of the stop
    float sostaGuida = 0;   ///< length of the guide's entry, before the factor
};

/// The values of the panel, hundredths of an hour and Julian days. They are updated after each driven piece, so stops
/// at the end of the trip don't count.
struct PannelloViandoria {
    float ora = 0; ///< arrival of the last piece
    float giuliano = 0;
    int kmTotali = 0;
    int traghetti = 0;
    std::array<int, 4> km{}; ///< by road type
};

struct Viandoria {
    enum class Esito {
        Completa,     ///< all rows were simulated
        TroppiGiorni, ///< stopped when it needed more than the wanted days
        Interrotta
    };
    Esito esito = Esito::Completa;
    std::vector<RigaViandoria> righe;
    PannelloViandoria pannello;
    int giorni = 0; ///< days of the trip
    float ora = 0;  ///< clock at the end, hundredths of an hour
    float giuliano = 0;
    int traghetti = 0;
};

/// Called before each working row with its number, from 1, and the schedule so far. If it returns true, the test stops.
/// The last two rows so far may still receive a long rest. Outcome, days and end clock are set only at the end.
using FermaRiga = std::function<bool(int row, const Viandoria& soFar)>;

/// Simulates the trip. `coefficiente` multiplies the guide's stops only. `memory` is a vector of rows no longer needed,
/// whose memory is used again.
[[nodiscard]] Viandoria simulate(const std::vector<RigaDiLavoro>& rows, const ParametriSimulazione& with,
                                 float coefficiente, const FermaRiga& stop = {},
                                 std::vector<RigaViandoria> memory = {});

} // namespace vanzer
