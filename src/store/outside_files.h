// SPDX-License-Identifier: MIT
// Reads and writes files of other programs, but never the archive or what belongs to it.
#pragma once

#include <QByteArray>
#include <QString>

#include "core/text_file.h"

namespace vanzer::store {

/// Why no file for other programs may be written to `path`, in Italian, as the end of a sentence that begins with "Il
/// file …". Empty if it may. Reserved are the archive, its journal, the rest of a rebuild, its copies and everything
/// that isn't a plain file. Links of every kind are followed.
[[nodiscard]] QString motivoRiservato(const QString& path, const QString& archivePath);

/// Writes as writeFile. Returns the reason if the path is reserved.
[[nodiscard]] QString writeForOthers(const QString& path, const QByteArray& contents, const QString& archivePath);

/// Reads as readFile, but never the archive: opening and closing its file a second time would release the engine's
/// lock.
[[nodiscard]] FileLetto readFromOthers(const QString& path, const QString& archivePath);

} // namespace vanzer::store
