// Pages as a PDF: texts that can be searched and copied, their fonts in the file.
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

/// What a document says about itself. Its language is Italian.
struct About {
    QString title{};
    QString creator{};
    QDateTime made{};
};

/// Each page goes to the device when it is added and is forgotten then. Whether all of it arrived is asked of the
/// device.
class Pdf {
  public:
    /// Begins the document. `device` and `fonts` live as long.
    Pdf(QIODevice& device, Fonts& fonts, const About& about);
    ~Pdf();
    Pdf(const Pdf&) = delete;
    Pdf& operator=(const Pdf&) = delete;

    /// False if the device did not take all of it, or it can't be drawn.
    [[nodiscard]] bool add(const Page& page);
    /// After the last page; false in the same case.
    [[nodiscard]] bool finish();

  private:
    std::unique_ptr<PdfSurface> surface_;
};

} // namespace vanzer::paper
