// The archive as it was before its tables were brought up to date, kept among the copies for some starts.
#pragma once

#include <QString>

#include "store/database.h"

namespace vanzer::store {

inline constexpr int avviiTenuti = 10;

/// Copies an open archive to "Copie/Vanzer prima della ricostruzione (ancora 10 avvii).mdb" beside it, whole and safe
/// on the disk, and returns its path. Throws StoreError, and leaves nothing then.
[[nodiscard]] QString keepAside(Database& archive);

/// A start is done: the names of what is kept beside the archive count one less, and what comes to nothing goes.
void countStart(const QString& archivePath);

} // namespace vanzer::store
