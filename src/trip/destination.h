// What is worked out about destinations, apart from the window.
#pragma once

#include <optional>
#include <vector>

#include <QStringList>

namespace vanzer {

/// The code of a new destination, from the stored codes in ascending order: the lowest free one if there is a gap in
/// the run from 1, else the next.
[[nodiscard]] QString codiceNuovaMeta(const std::vector<int>& codes);

/// Whether two names mean the same destination: equal, case ignored, in what stands before their first bracket.
[[nodiscard]] bool stessaMeta(const QString& a, const QString& b);

/// The search list: names in their order, motorway stretches behind all others.
[[nodiscard]] QStringList elencoRicerca(const QStringList& names);

} // namespace vanzer
