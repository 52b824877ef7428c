// The trip as activities on one line of time: what the schedule's rows say, with the meals, breaks, nights and free
// hours between them. Knows neither the window nor paper; both draw from it.
#pragma once

#include <array>
#include <functional>
#include <vector>

#include <QString>

#include "schedule/simulation.h"

namespace vanzer {

struct Attivita {
    enum class Tipo { Guida, Sosta, Pasto, Pausa, Notte, Libero };

    Tipo tipo = Tipo::Libero;
    double inizio = 0; ///< hundredths of an hour from midnight of the trip's first day
    double fine = 0;
    int riga = 0;  ///< row of the schedule that it comes from or follows, from 0; a stop of several days has one
    QString nome;  ///< where a drive leads, what a stop is for, where a night is spent
    QString nota;  ///< road of a drive, category of a stop
    QString luogo; ///< place of it; on the way the next one
    int km = 0;    ///< of a drive

    [[nodiscard]] double durata() const { return fine - inizio; }
};

struct LineaDelTempo {
    float giulianoInizio = 0; ///< the first day
    std::vector<Attivita> attivita;
};

/// The road of a leg by its row in the leg table.
using StradaTappa = std::function<QString(int tappa)>;

/// Nothing is counted anew: drives and stops begin and end as the simulation says. A stop of several days stands there
/// with a piece for each day, within the visiting hours. A night begins at its hour, or with the arrival that reaches
/// it, and ends at the hour of activity.
[[nodiscard]] LineaDelTempo lineaDelTempo(const Viandoria& schedule, const std::vector<RigaDiLavoro>& work,
                                          const ParametriSimulazione& with, const StradaTappa& road);

/// A piece of an activity that lies in one day.
struct Barra {
    std::size_t attivita = 0; ///< index in the line
    double da = 0;            ///< hundredths of an hour from the day's midnight, up to 2400
    double a = 0;
};

struct Giornata {
    QString data; ///< "Sab 21/06"
    std::vector<Barra> barre;
    int km = 0;
    double guida = 0; ///< hundredths
    double soste = 0;
};

/// The line cut at every midnight, all calendar days of the trip. What was driven counts on the day that it began.
[[nodiscard]] std::vector<Giornata> giornate(const LineaDelTempo& line);

/// "Guida", "Sosta", ...
[[nodiscard]] QString nomeAttivita(Attivita::Tipo type);
/// "Sab 21/06 10:16 - 11:26  Guida: Garda (SR249, 35 km)"
[[nodiscard]] QString descrizione(const LineaDelTempo& line, const Attivita& activity);

/// A moment of the line as day and minute.
struct Istante {
    float giuliano = 0;
    int ora = 0;
    int minuti = 0;
};
/// Rounded to the minute.
[[nodiscard]] Istante istante(const LineaDelTempo& line, double hundredths);

} // namespace vanzer
