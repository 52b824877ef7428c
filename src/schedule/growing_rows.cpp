// SPDX-License-Identifier: MIT
#include "schedule/growing_rows.h"

#include <algorithm>
#include <cstddef>

#include "core/text.h"

namespace vanzer {

void grow(TestiTabella& rows, const Viandoria& soFar, const std::vector<RigaDiLavoro>& work,
          const TestiViandoria& texts) {
    // The last two rows may have received a long rest since.
    constexpr std::size_t unsettled = 2;
    const std::size_t made = std::min(static_cast<std::size_t>(rows.rows()), soFar.righe.size());
    const std::size_t kept = made - std::min(made, unsettled);
    const auto first = soFar.righe.begin() + static_cast<std::ptrdiff_t>(kept);
    const std::size_t count = std::min(soFar.righe.size() - kept, massimoRigheNuove);
    Viandoria added;
    added.righe.assign(first, first + static_cast<std::ptrdiff_t>(count));
    const TestiTabella more = celleViandoria(added, work, texts);
    int to = static_cast<int>(kept);
    rows.setRows(to);
    rows.setRows(to + more.rows());
    for (int i = 0; i < more.rows(); ++i, ++to) {
        rows.copyRow(to, more, i);
        if (!rows.text(to, colNumero).isEmpty())
            rows.at(to, colNumero) = QString::number(to + 1);
    }
}

} // namespace vanzer
