// SPDX-License-Identifier: MIT
// The trip as activities on one line of time: the drives and stops of the schedule, with meals, breaks, nights and free
// hours between them. Independent of window and paper, which both draw it.
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
    double fine = 0;   ///< likewise
    int riga = 0;      ///< row of the schedule, from 0, that it belongs to or follows; all pieces of a stop share one
    QString nome;      ///< destination of a drive, name of a stop, place of a night
    QString nota;      ///< road of a drive, category of a stop
    QString luogo;     ///< its place; on the way the next place
    int km = 0;        ///< of a drive

    [[nodiscard]] double durata() const { return fine - inizio; }
};

struct LineaDelTempo {
    float giulianoInizio = 0; ///< Julian day of the first day
    std::vector<Attivita> attivita;
};

/// The road of a leg. `tappa` is its row in the leg table.
using StradaTappa = std::function<QString(int tappa)>;

/// Makes the line from a simulated schedule. Drives and stops keep the times of the simulation. A stop of several days
/// has a piece for each day, within the visiting hours. A night begins at its hour, or with the arrival that reaches
/// it. It ends at the hour of activity.
[[nodiscard]] LineaDelTempo lineaDelTempo(const Viandoria& schedule, const std::vector<RigaDiLavoro>& work,
                                          const ParametriSimulazione& with, const StradaTappa& road);

/// The part of an activity that lies in one day.
struct Barra {
    std::size_t attivita = 0; ///< index in the line
    double da = 0;            ///< hundredths of an hour from the day's midnight, up to 2400
    double a = 0;
};

struct Giornata {
    QString data; ///< "Sab 21/06"
    std::vector<Barra> barre;
    int km = 0;
    double guida = 0; ///< driving time, hundredths of an hour as `soste`
    double soste = 0;
};

/// Cuts the line at every midnight. Has all calendar days of the trip. The kilometres of a drive count on the day when
/// it begins.
[[nodiscard]] std::vector<Giornata> giornate(const LineaDelTempo& line);

/// "Guida", "Sosta", ...
[[nodiscard]] QString nomeAttivita(Attivita::Tipo type);
/// "Sab 21/06 10:16 - 11:26  Guida: Garda (SR249, 35 km)"
[[nodiscard]] QString descrizione(const LineaDelTempo& line, const Attivita& activity);

/// A moment of the line, as day and minute.
struct Istante {
    float giuliano = 0; ///< Julian day
    int ora = 0;
    int minuti = 0;
};
/// The moment, rounded to the minute. `hundredths` of an hour count from midnight of the first day.
[[nodiscard]] Istante istante(const LineaDelTempo& line, double hundredths);

} // namespace vanzer
