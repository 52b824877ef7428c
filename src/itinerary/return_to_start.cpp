#include "itinerary/return_to_start.h"

#include "core/place_name.h"
#include "core/text.h"

namespace vanzer {

namespace {

int joinRow(const std::vector<RigaRitorno>& legs) {
    if (legs.empty())
        return 0;
    const QString name = luogoDiSvolta(legs.back().luogo);
    for (std::size_t r = legs.size() - 1; r >= 1; --r) {
        if (iniziaCon(legs[r - 1].luogo, name))
            return static_cast<int>(r);
    }
    return 0;
}

} // namespace

QString luogoDiSvolta(const QString& place) {
    return taglia(taglia(Trim(place), u'('), u'[');
}

Ritorno ritornoAStart(const std::vector<RigaRitorno>& legs) {
    Ritorno home{joinRow(legs), {}};
    home.righe.reserve(static_cast<std::size_t>(home.riga));
    for (int r = home.riga - 1; r >= 1; --r) {
        const auto here = static_cast<std::size_t>(r - 1);
        // The road between two places stands on the later one of the way out.
        const RigaRitorno& driven = legs[here + 1];
        home.righe.push_back({legs[here].luogo, driven.strada, driven.km, driven.tipoStrada});
    }
    return home;
}

} // namespace vanzer
