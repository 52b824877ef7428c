// The one flat list that a simulation walks: each leg, then its itinerary stop, then what the guide knows of the place.
#pragma once

#include <vector>

#include <QString>

namespace vanzer {

struct RigaDiLavoro {
    enum class Tipo { Tappa, SostaItinerario, SostaGuida, Menzione };

    Tipo tipo = Tipo::Tappa;
    int tappa = 0;  ///< row of the leg in the table, from 1
    int km = 0;     ///< of the leg; 0 on all other rows
    int strada = 0; ///< index of the road type
    bool traghetto = false;
    bool fineGiorno = false; ///< the day ends behind this row
    float sostaFissa = 0;    ///< itinerary stop, hundredths
    float sostaGuida = 0;    ///< guide stop, hundredths: the one that the multiplier stretches
    QString nome;            ///< place; of a guide entry what is shown: " > 2 * Foro"
    QString nota;            ///< its category
};

/// The name as the schedule and its picture take it: " > a ROMA" for a stop there.
[[nodiscard]] QString nomeMostrato(const RigaDiLavoro& row);

struct RigheDiLavoro {
    std::vector<RigaDiLavoro> righe;
    float sosteItinerario = 0; ///< sums over all rows, hundredths
    float sosteGuida = 0;
};

} // namespace vanzer
