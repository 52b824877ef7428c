// SPDX-License-Identifier: MIT
// Rules about destinations that need no window.
#pragma once

#include <optional>
#include <vector>

#include <QStringList>

namespace vanzer {

/// The code for a new destination. `codes` are the stored ones, in ascending order. The result is the lowest free code
/// in the run from 1, or the next one if that run has no gap.
[[nodiscard]] QString codiceNuovaMeta(const std::vector<int>& codes);

/// Whether two names mean the same destination. Only what stands before the first bracket counts, case ignored.
[[nodiscard]] bool stessaMeta(const QString& a, const QString& b);

/// The entries of the search list: the names in their order, with motorway stretches after all others.
[[nodiscard]] QStringList elencoRicerca(const QStringList& names);

} // namespace vanzer
