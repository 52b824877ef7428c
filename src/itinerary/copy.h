// A stretch of another destination's legs, copied in either direction.
#pragma once

#include <vector>

#include <QString>

namespace vanzer {

/// A leg of the source as its cells have it; road, kilometres and type are those by which one arrives at the place.
struct RigaSorgente {
    QString luogo;
    QString strada;
    QString km;
    QString tipoStrada;
    QString sosta; ///< gg:hh:mm

    friend bool operator==(const RigaSorgente&, const RigaSorgente&) = default;
};

/// The legs from row `from` to row `to` (from 1) in that direction. Going backward one reaches a place by the road of
/// the row behind it. A row that the source lacks is empty; a stop comes without the mark of the end of the day.
[[nodiscard]] std::vector<RigaSorgente> copyStretch(const std::vector<RigaSorgente>& source, int from, int to,
                                                    bool withStops);

/// Rows from `prima` to `ultima` (from 1).
struct Blocco {
    int prima = 0;
    int ultima = 0;
};

/// What shows as chosen: from the first to the last leg, where these are assigned (else 0), and the row at hand.
[[nodiscard]] Blocco bloccoScelto(int prima, int ultima, int riga);

} // namespace vanzer
