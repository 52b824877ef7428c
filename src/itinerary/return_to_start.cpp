// SPDX-License-Identifier: MIT
#include "itinerary/return_to_start.h"

#include "core/place_name.h"
#include "core/text.h"

namespace vanzer {

namespace {

int joinRow(const std::vector<QStringView>& places) {
    if (places.empty())
        return 0;
    const QString name = luogoDiSvolta(places.back().toString());
    for (std::size_t r = places.size() - 1; r >= 1; --r) {
        if (beginsWith(places[r - 1], name))
            return static_cast<int>(r);
    }
    return 0;
}

} // namespace

QString luogoDiSvolta(const QString& place) {
    return cutAt(cutAt(Trim(place), u'('), u'[');
}

Ritorno ritornoAStart(const std::vector<QStringView>& places) {
    Ritorno home{joinRow(places), {}};
    // The road between two places stands in the row of the later one.
    for (int r = home.riga - 1; r >= 1; --r)
        home.passi.push_back({.luogo = r, .strada = r + 1});
    return home;
}

} // namespace vanzer
