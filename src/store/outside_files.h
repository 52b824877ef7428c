// Files of other programs: they are never written where the archive is, nor read through its back.
#pragma once

#include <QByteArray>
#include <QString>

#include "core/text_file.h"

namespace vanzer::store {

/// Why no file for others may have that name, as the end of a sentence that begins with "Il file …": the archive is
/// there, or what belongs to it (its journal, what is left of a rebuild), or one of its copies, or what is no file. The
/// name counts by where it leads, through links of every kind. Empty if the name is free.
[[nodiscard]] QString motivoRiservato(const QString& path, const QString& archivePath);

/// As writeFile, unless the name is reserved.
[[nodiscard]] QString writeForOthers(const QString& path, const QByteArray& contents, const QString& archivePath);

/// As readFile, but never the archive: whoever opens and closes its file besides the archive lets go of its lock.
[[nodiscard]] FileLetto readFromOthers(const QString& path, const QString& archivePath);

} // namespace vanzer::store
