// The printers of the batch program: "Registro" draws nothing and records, "PDF" asks for its file and writes it. Both
// measure text the same way, without any font, so that a layout comes out the same everywhere.
#pragma once

#include <vector>

#include <QJsonObject>

#include "batch/recorded_page.h"
#include "toolkit/ports.h"
#include "toolkit/printer.h"

namespace vanzer::batch {

class RecordingPrinter : public Printer {
  public:
    /// `files` is asked for the file of a PDF and must outlive the printer. `archive` is the file that no PDF takes the
    /// place of.
    explicit RecordingPrinter(FileDialogs& files, QString archive = {});

    [[nodiscard]] QStringList names() const override;
    [[nodiscard]] QString current() const override;
    void choose(const QString& name) override;

    void setPaperSize(int /*size*/) override {}          // always A4
    void setOrientation(int /*orientation*/) override {} // always portrait
    void setScaleMode(int /*mode*/) override {}          // always mm

    void setFontName(const QString& name) override;
    [[nodiscard]] QString fontName() const override { return font_.name; }
    void setBold(bool on) override { font_.bold = on; }
    void setItalic(bool on) override { font_.italic = on; }
    void setFontSize(double points) override { font_.size = points; }
    [[nodiscard]] double textWidth(const QString& text) const override;
    [[nodiscard]] double textHeight(const QString& text) const override;

    void text(Punto at, const QString& text) override;
    void line(Punto from, Punto to, int width) override;
    void box(Punto from, Punto to, int width, std::optional<quint32> fill) override;
    void picture(Immagine picture, Punto at, Punto size) override;

    [[nodiscard]] int page() const override { return page_; }
    void newPage() override;
    bool endDoc() override;
    void dropDoc() override;

    /// What a program's end does: an open document is ended, the default printer is current again.
    void reset();
    /// What was recorded since the last call, and the name of the current printer.
    [[nodiscard]] QJsonObject take();

  private:
    enum class Device { Registro, Pdf };
    void openPage();
    void draw(Operazione operation);
    [[nodiscard]] std::vector<Pagina>& pages() { return device_ == Device::Pdf ? pdf_ : recorded_; }

    FileDialogs& files_;
    QString archive_;
    Device device_ = Device::Registro;
    Carattere font_;
    int page_ = 0;
    std::vector<Pagina> recorded_;
    int documents_ = 0;
    std::vector<Pagina> pdf_; ///< the document that is being drawn
    QString pdfPath_;         ///< empty: the user didn't want it
};

} // namespace vanzer::batch
