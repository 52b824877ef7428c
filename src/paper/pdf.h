// SPDX-License-Identifier: MIT
// Writes pages as a PDF. Its texts can be searched and copied; fonts are embedded.
#pragma once

#include <memory>

#include <QByteArray>
#include <QDateTime>
#include <QIODevice>
#include <QString>

#include "paper/fonts.h"
#include "paper/page.h"

namespace vanzer::paper {

class PdfSurface;

/// Metadata of a document. Its language is Italian.
struct About {
    QString title{};
    QString creator{};
    QDateTime made{};
};

/// Writes each page to the device when it is added and doesn't keep it. Errors of a buffered device show only when it
/// is flushed.
class Pdf {
  public:
    /// Begins the document. `device` and `fonts` must outlive it.
    Pdf(QIODevice& device, Fonts& fonts, const About& about);
    ~Pdf();
    Pdf(const Pdf&) = delete;
    Pdf& operator=(const Pdf&) = delete;

    /// Adds a page. False if the device did not take all of it, or if it can't be drawn.
    [[nodiscard]] bool add(const Page& page);
    /// Ends the document after the last page. False as for add().
    [[nodiscard]] bool finish();

  private:
    std::unique_ptr<PdfSurface> surface_;
};

} // namespace vanzer::paper
