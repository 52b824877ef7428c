// SPDX-License-Identifier: MIT
// The way home: the outward route in reverse, from the place where the trip turned back to its start.
#pragma once

#include <vector>

#include <QString>
#include <QStringView>

namespace vanzer {

/// A leg of the way home. The numbers are legs of the way out, from 1.
struct PassoRitorno {
    int luogo = 0;  ///< its place is that of this leg
    int strada = 0; ///< its road, kilometres and road type are those of this leg

    friend bool operator==(const PassoRitorno&, const PassoRitorno&) = default;
};

struct Ritorno {
    int riga = 0; ///< the leg, from 1, where the end joins the outward route; 0 if nowhere
    std::vector<PassoRitorno> passi;
};

/// The name to look for: without brackets and marks.
[[nodiscard]] QString luogoDiSvolta(const QString& place);

/// The legs that lead home from the last of `places`, which are the places of all legs. The join is the nearest earlier
/// leg whose place begins with the last one's name, case ignored. New legs have no stops.
[[nodiscard]] Ritorno ritornoAStart(const std::vector<QStringView>& places);

} // namespace vanzer
