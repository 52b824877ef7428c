// SPDX-License-Identifier: MIT
// Keeps the archive from before a rebuild among the copies, for a number of starts.
#pragma once

#include <QString>

#include "store/database.h"

namespace vanzer::store {

inline constexpr int avviiTenuti = 10;

/// Copies an open archive to "Copie/Vanzer prima della ricostruzione (ancora 10 avvii).mdb" beside it and returns the
/// path. The copy is complete and safe on the disk then. Throws StoreError and leaves no part of the copy.
[[nodiscard]] QString keepAside(Database& archive);

/// Counts a start of the program: renames each kept archive to one start less and removes those that reach 0.
void countStart(const QString& archivePath);

} // namespace vanzer::store
