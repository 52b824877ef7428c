// A document as a PDF file: A4 portrait, the reader's own Times in four cuts, texts, lines and boxes. The window's
// pictures live in the desktop's resources; where one belongs the page stays blank.
#pragma once

#include <vector>

#include <QByteArray>
#include <QString>

#include "batch/recorded_page.h"

namespace vanzer::batch {

/// The whole file.
[[nodiscard]] QByteArray pdfOf(const std::vector<Pagina>& pages);

/// Writes the file aside and puts it into place; false if that fails, and then what was there before is still there.
[[nodiscard]] bool writePdf(const QString& path, const std::vector<Pagina>& pages);

} // namespace vanzer::batch
