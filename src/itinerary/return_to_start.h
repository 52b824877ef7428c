// The way home: the outward route in reverse, from the place nearest to where the trip ended back to where it began.
#pragma once

#include <vector>

#include <QString>
#include <QStringView>

namespace vanzer {

/// A leg of the way home, by legs of the way out, from 1.
struct PassoRitorno {
    int luogo = 0;  ///< it ends at the place of this one
    int strada = 0; ///< by the road, kilometres and road type that stand on this one

    friend bool operator==(const PassoRitorno&, const PassoRitorno&) = default;
};

struct Ritorno {
    int riga = 0; ///< the leg, from 1, where the end joins the outward route; 0 if it does so nowhere
    std::vector<PassoRitorno> passi;
};

/// The name that is looked for: without brackets and marks.
[[nodiscard]] QString luogoDiSvolta(const QString& place);

/// What follows the last of the legs, of which these are the places. The nearest earlier leg whose place begins with
/// the last one's name, case ignored, is the join; none of the new legs has a stop.
[[nodiscard]] Ritorno ritornoAStart(const std::vector<QStringView>& places);

} // namespace vanzer
