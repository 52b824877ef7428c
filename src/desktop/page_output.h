// Where the pages of a document go, one after the other: a PDF or a printer. Each page is forgotten when it is written.
#pragma once

#include <memory>

#include "desktop/drawn_page.h"

namespace vanzer::desktop {

/// Whatever fails throws PrinterError with the name of the file or printer. One that is let go before its end leaves
/// no file, and an older file as it was.
class PageOutput {
  public:
    virtual ~PageOutput() = default;
    virtual void write(const DrawnPage& page) = 0;
    /// After the last page.
    virtual void finish() = 0;
};

/// Writes aside and takes the file's place at the end.
[[nodiscard]] std::unique_ptr<PageOutput> pdfOutput(const QString& path);

/// The platform's printer of that name.
[[nodiscard]] std::unique_ptr<PageOutput> paperOutput(const QString& printer);

} // namespace vanzer::desktop
