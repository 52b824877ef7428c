// SPDX-License-Identifier: MIT
// The common part of printers that draw pages. It sets texts in the paper's fonts, and sends a page when the next one
// begins.
#pragma once

#include <memory>

#include <QDateTime>

#include "paper/fonts.h"
#include "paper/page.h"
#include "toolkit/printer.h"

namespace vanzer {

/// The target for the pages of a document, one after the other. Every failure throws PrinterError with the name of the
/// file or printer. If the object is destroyed before finish(), no file is written and an older one stays as it was.
class PageOutput {
  public:
    virtual ~PageOutput() = default;
    virtual void write(paper::Page page) = 0;
    /// Ends the document after its last page. False if the user cancelled it instead.
    virtual bool finish() = 0;
    /// The files that the document goes into. Empty for paper.
    [[nodiscard]] virtual QStringList files() const { return {}; }
};

/// Writes a PDF. It is written beside the file and replaces it at the end. `fonts` must outlive the result.
[[nodiscard]] std::unique_ptr<PageOutput> pdfOutput(const QString& path, paper::Fonts& fonts, const QDateTime& now);

class PagePrinter : public Printer {
  public:
    PagePrinter();

    void setFontName(const QString& name) override;
    [[nodiscard]] QString fontName() const override { return fonts_.typefaceFor(wantedFont_).name; }
    void setBold(bool on) override { font_.bold = on; }
    void setItalic(bool on) override { font_.italic = on; }
    void setFontSize(double points) override { font_.points = points; }
    [[nodiscard]] double textWidth(const QString& text) const override { return fonts_.width(text, font()); }
    [[nodiscard]] double textHeight(const QString& /*text*/) const override { return fonts_.height(font()); }

    void text(Punto at, const QString& text) override;
    void line(Punto from, Punto to, int width) override;
    void box(Punto from, Punto to, int width, std::optional<quint32> fill) override;
    void picture(Immagine picture, Punto at, Punto size) override;

    [[nodiscard]] int page() const override { return page_; }
    void newPage() override;
    bool endDoc() override;
    void dropDoc() override;
    [[nodiscard]] QStringList madeFiles() const override { return madeFiles_; }

  protected:
    /// Opens the target of a new document. Null if the user cancels it.
    [[nodiscard]] virtual std::unique_ptr<PageOutput> begin() = 0;
    [[nodiscard]] paper::Fonts& fonts() { return fonts_; }

  private:
    /// Runs `step`. If it throws, drops the document and throws again.
    template<typename Step> void orDrop(Step step);
    [[nodiscard]] const paper::Font& font() const;
    void beginOnce();
    void draw(paper::Drawing drawing);

    mutable paper::Fonts fonts_;
    QString wantedFont_;
    mutable paper::Font font_; ///< the family is looked up on demand

    // the current document
    int page_ = 0;
    std::unique_ptr<PageOutput> output_; ///< null if the user cancelled it
    paper::Page drawn_;

    QStringList madeFiles_;
};

} // namespace vanzer
