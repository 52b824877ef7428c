// The way home: the outward route in reverse, from the place nearest to where the trip ended back to where it began.
#pragma once

#include <vector>

#include <QString>

namespace vanzer {

/// A leg as its cells have it; road, kilometres and type are those by which one arrives at the place.
struct RigaRitorno {
    QString luogo;
    QString strada;
    QString km;
    QString tipoStrada;

    friend bool operator==(const RigaRitorno&, const RigaRitorno&) = default;
};

struct Ritorno {
    int riga = 0; ///< the leg, from 1, where the end joins the outward route; 0 if it does so nowhere
    std::vector<RigaRitorno> righe;
};

/// The name that is looked for: without brackets and marks.
[[nodiscard]] QString luogoDiSvolta(const QString& place);

/// What follows the last of the legs. The nearest earlier leg whose place begins with the last one's name, case
/// ignored, is the join; none of the new legs has a stop.
[[nodiscard]] Ritorno ritornoAStart(const std::vector<RigaRitorno>& legs);

} // namespace vanzer
