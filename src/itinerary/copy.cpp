// SPDX-License-Identifier: MIT
#include "itinerary/copy.h"

#include <algorithm>

namespace vanzer {

std::vector<RigaSorgente> copyStretch(const std::vector<RigaSorgente>& source, int from, int to, bool withStops) {
    const auto row = [&source](int r) {
        return r >= 1 && r <= static_cast<int>(source.size()) ? source[static_cast<std::size_t>(r - 1)]
                                                              : RigaSorgente();
    };
    // A typed number may be huge. No itinerary has as many rows as this.
    constexpr int most = 10'000;
    from = std::clamp(from, -most, most);
    to = std::clamp(to, -most, most);
    const bool forward = from <= to;
    const int step = forward ? 1 : -1;
    std::vector<RigaSorgente> legs;
    for (int i = from; i != to + step; i += step) {
        RigaSorgente leg = row(forward ? i : i + 1);
        const RigaSorgente place = row(i);
        leg.luogo = place.luogo;
        leg.sosta = withStops ? place.sosta : QString();
        if (leg.sosta.startsWith(u'*'))
            leg.sosta.remove(0, 1);
        legs.push_back(leg);
    }
    return legs;
}

Blocco bloccoScelto(int prima, int ultima, int riga) {
    const auto [from, to] = std::minmax(prima > 0 ? prima : riga, ultima > 0 ? ultima : riga);
    return {std::min(from, riga), std::max(to, riga)};
}

} // namespace vanzer
