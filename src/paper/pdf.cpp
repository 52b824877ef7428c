// SPDX-License-Identifier: MIT
#include "paper/pdf.h"

#include <cairo-pdf.h>

#include "paper/painter.h"

namespace vanzer::paper {

namespace {

constexpr double points(double mm) {
    return mm / mmPerPoint;
}

/// Adds the language to the catalogue. That is the last object of a document, so no other object moves.
QByteArray withLanguage(QByteArray end) {
    const QByteArray catalogue = "/Type /Catalog\n";
    const QByteArray language = "   /Lang (it-IT)\n";
    const QByteArray tableMark = "startxref\n";
    const qsizetype at = end.lastIndexOf(catalogue);
    const qsizetype table = end.lastIndexOf(tableMark);
    if (at < 0 || table < at)
        return end;
    const qsizetype number = table + tableMark.size();
    const qsizetype behind = end.indexOf('\n', number);
    const qint64 place = end.sliced(number, behind - number).toLongLong() + language.size();
    end.replace(number, behind - number, QByteArray::number(place));
    end.insert(at + catalogue.size(), language);
    return end;
}

} // namespace

class PdfSurface {
  public:
    PdfSurface(QIODevice& device, Fonts& fonts, const About& about)
        : device_(device), painter_(fonts, Letters::Text),
          surface_(cairo_pdf_surface_create_for_stream(write, this, points(sheetSize.x), points(sheetSize.y))) {
        // In version 1.4 the end of the file isn't compressed, so that the language can be added.
        cairo_pdf_surface_restrict_to_version(surface_.get(), CAIRO_PDF_VERSION_1_4);
        tell(CAIRO_PDF_METADATA_TITLE, about.title);
        tell(CAIRO_PDF_METADATA_CREATOR, about.creator);
        tell(CAIRO_PDF_METADATA_CREATE_DATE, about.made.toUTC().toString(Qt::ISODate));
    }

    ~PdfSurface() { ending_ = true; } // nothing of a dropped document is written from here on
    PdfSurface(const PdfSurface&) = delete;
    PdfSurface& operator=(const PdfSurface&) = delete;

    bool add(const Page& page) {
        const Context context(cairo_create(surface_.get()));
        cairo_scale(context.get(), points(1), points(1));
        painter_.draw(*context, page);
        cairo_show_page(context.get());
        return whole_ && cairo_status(context.get()) == CAIRO_STATUS_SUCCESS;
    }

    bool finish() {
        ending_ = true;
        cairo_surface_finish(surface_.get());
        return whole_ && cairo_surface_status(surface_.get()) == CAIRO_STATUS_SUCCESS && arrives(withLanguage(end_));
    }

  private:
    void tell(cairo_pdf_metadata_t what, const QString& text) {
        cairo_pdf_surface_set_metadata(surface_.get(), what, text.toUtf8().constData());
    }

    static cairo_status_t write(void* self, const unsigned char* bytes, unsigned count) {
        auto& surface = *static_cast<PdfSurface*>(self);
        const QByteArrayView written(bytes, static_cast<qsizetype>(count));
        if (surface.ending_)
            surface.end_ += written;
        else
            surface.whole_ = surface.whole_ && surface.arrives(written);
        return surface.whole_ ? CAIRO_STATUS_SUCCESS : CAIRO_STATUS_WRITE_ERROR;
    }

    [[nodiscard]] bool arrives(QByteArrayView bytes) {
        return device_.write(bytes.data(), bytes.size()) == bytes.size();
    }

    QIODevice& device_;
    bool whole_ = true; ///< the device took all that was written
    bool ending_ = false;
    QByteArray end_; ///< the part after the pages: fonts and tables
    Painter painter_;
    Surface surface_;
};

Pdf::Pdf(QIODevice& device, Fonts& fonts, const About& about)
    : surface_(std::make_unique<PdfSurface>(device, fonts, about)) {}

Pdf::~Pdf() = default;

bool Pdf::add(const Page& page) {
    return surface_->add(page);
}

bool Pdf::finish() {
    return surface_->finish();
}

} // namespace vanzer::paper
