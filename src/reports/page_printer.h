// What printers that draw have in common: texts in the paper's fonts, and a page that goes off when the next one
// begins.
#pragma once

#include <memory>

#include <QDateTime>

#include "paper/fonts.h"
#include "paper/page.h"
#include "toolkit/printer.h"

namespace vanzer {

/// Where the pages of a document go, one after the other. Whatever fails throws PrinterError with the name of the file
/// or printer. One that is let go before its end leaves no file, and an older file as it was.
class PageOutput {
  public:
    virtual ~PageOutput() = default;
    virtual void write(paper::Page page) = 0;
    /// After the last page. False if the user gave the document up instead.
    virtual bool finish() = 0;
    /// The file that the document goes into; none for paper.
    [[nodiscard]] virtual QStringList files() const { return {}; }
};

/// A PDF, written aside; it takes the file's place at the end. `fonts` lives as long.
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
    /// Where the document that begins is to go; null if the user doesn't want it after all.
    [[nodiscard]] virtual std::unique_ptr<PageOutput> begin() = 0;
    [[nodiscard]] paper::Fonts& fonts() { return fonts_; }

  private:
    /// Throws what `step` throws, with the document dropped.
    template<typename Step> void orDrop(Step step);
    [[nodiscard]] const paper::Font& font() const;
    void beginOnce();
    void draw(paper::Drawing drawing);

    mutable paper::Fonts fonts_;
    QString wantedFont_;
    mutable paper::Font font_; ///< its family is looked up when it is needed

    // The document that is being drawn.
    int page_ = 0;
    std::unique_ptr<PageOutput> output_; ///< null: unwanted
    paper::Page drawn_;

    QStringList madeFiles_;
};

} // namespace vanzer
