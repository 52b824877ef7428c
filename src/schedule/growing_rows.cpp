#include "schedule/growing_rows.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace vanzer {

void cresce(std::vector<CelleViandoria>& rows, const Viandoria& soFar, const std::vector<RigaDiLavoro>& work,
            const TestiViandoria& texts) {
    // A long rest may have been noted on the last two rows since.
    constexpr std::size_t unsettled = 2;
    const std::size_t made = std::min(rows.size(), soFar.righe.size());
    const std::size_t kept = made - std::min(made, unsettled);
    rows.resize(kept);
    const auto first = soFar.righe.begin() + static_cast<std::ptrdiff_t>(kept);
    const std::size_t count = std::min(soFar.righe.size() - kept, massimoRigheNuove);
    Viandoria added;
    added.righe.assign(first, first + static_cast<std::ptrdiff_t>(count));
    for (CelleViandoria& cells : celleViandoria(added, work, texts)) {
        if (!cells[colNumero].isEmpty())
            cells[colNumero] = testoNumero(static_cast<int>(rows.size()) + 1);
        rows.push_back(std::move(cells));
    }
}

} // namespace vanzer
