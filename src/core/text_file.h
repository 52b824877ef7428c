// Text files for other programs: code page 1252, lines closed by CR LF.
#pragma once

#include <QString>
#include <QStringList>

namespace vanzer {

/// Why a file could not be written, in Italian: found out from the path after the failure.
[[nodiscard]] QString motivoNonScritto(const QString& path);

/// Writes the file aside and puts it into place: what was there before stays until the new one is whole. The result is
/// the reason of a failure, empty when all went well.
[[nodiscard]] QString scriveFileTesto(const QString& path, const QStringList& lines);

} // namespace vanzer
