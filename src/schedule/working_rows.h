// SPDX-License-Identifier: MIT
// The flat list that a simulation reads: each leg, then its itinerary stop, then the guide's entries of its place.
#pragma once

#include <vector>

#include <QString>

namespace vanzer {

struct RigaDiLavoro {
    enum class Tipo { Tappa, SostaItinerario, SostaGuida, Menzione };

    Tipo tipo = Tipo::Tappa;
    int tappa = 0;  ///< row of the leg in the table, from 1
    int km = 0;     ///< kilometres of a leg; 0 in all other rows
    int strada = 0; ///< index of the road type
    bool traghetto = false;
    bool fineGiorno = false; ///< the day ends after this row
    float sostaFissa = 0;    ///< itinerary stop, hundredths of an hour
    float sostaGuida = 0;    ///< guide stop, hundredths of an hour, before the factor
    QString nome;            ///< place of a leg; for a guide entry its shown text: " > 2 * Foro"
    QString nota;            ///< category of a guide entry
};

/// The name that the schedule and its picture show: " > a ROMA" for a stop in ROMA.
[[nodiscard]] QString nomeMostrato(const RigaDiLavoro& row);

struct RigheDiLavoro {
    std::vector<RigaDiLavoro> righe;
    float sosteItinerario = 0; ///< sums over all rows, hundredths of an hour
    float sosteGuida = 0;
};

} // namespace vanzer
