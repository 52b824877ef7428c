// SPDX-License-Identifier: MIT
// Copying a stretch of another destination's legs, forward or backward.
#pragma once

#include <vector>

#include <QString>

namespace vanzer {

/// The cells of a leg of the source. Road, kilometres and type belong to the way that arrives at the place.
struct RigaSorgente {
    QString luogo;
    QString strada;
    QString km;
    QString tipoStrada;
    QString sosta; ///< gg:hh:mm

    friend bool operator==(const RigaSorgente&, const RigaSorgente&) = default;
};

/// Copies the legs from row `from` to row `to`, counted from 1. Backward, a place is reached by the road of the row
/// after it. A row that the source lacks is empty. Stops lose the mark of the end of the day.
[[nodiscard]] std::vector<RigaSorgente> copyStretch(const std::vector<RigaSorgente>& source, int from, int to,
                                                    bool withStops);

/// Rows from `prima` to `ultima`, counted from 1.
struct Blocco {
    int prima = 0;
    int ultima = 0;
};

/// The rows to show as chosen. `prima` and `ultima` are the assigned ends, or 0; `riga` is the current row.
[[nodiscard]] Blocco bloccoScelto(int prima, int ultima, int riga);

} // namespace vanzer
