// The printers of the batch program: "Registro", the default, and "PDF", which asks for its file and writes what the
// window's would write.
#pragma once

#include <utility>

#include <QJsonObject>

#include "batch/recording_printer.h"
#include "reports/page_printer.h"
#include "toolkit/ports.h"

namespace vanzer::batch {

/// A file that can't be written is told when the document ends.
class PdfPrinter : public PagePrinter {
  public:
    PdfPrinter(FileDialogs& files, const Clock& clock, QString archive)
        : files_(files), clock_(clock), archive_(std::move(archive)) {}

    [[nodiscard]] QStringList names() const override { return {current()}; }
    [[nodiscard]] QString current() const override { return QStringLiteral("PDF"); }
    void choose(const QString& /*name*/) override {}
    /// A document that nobody wants counts as sent.
    bool endDoc() override;
    void dropDoc() override;

  protected:
    [[nodiscard]] std::unique_ptr<PageOutput> begin() override;

  private:
    FileDialogs& files_;
    const Clock& clock_;
    QString archive_;
    QString notWritten_; ///< the file of the document that is being drawn for nothing
};

class BatchPrinter : public Printer {
  public:
    /// `files` is asked for the file of a PDF, `clock` for the time that it tells; both outlive the printer. `archive`
    /// is the file that no PDF takes the place of.
    BatchPrinter(FileDialogs& files, const Clock& clock, const QString& archive) : pdf_(files, clock, archive) {}

    [[nodiscard]] QStringList names() const override { return {record_.current(), pdf_.current()}; }
    [[nodiscard]] QString current() const override { return chosen_->current(); }
    void choose(const QString& name) override;

    void setFontName(const QString& name) override { chosen_->setFontName(name); }
    [[nodiscard]] QString fontName() const override { return chosen_->fontName(); }
    void setBold(bool on) override { chosen_->setBold(on); }
    void setItalic(bool on) override { chosen_->setItalic(on); }
    void setFontSize(double points) override { chosen_->setFontSize(points); }
    [[nodiscard]] double textWidth(const QString& text) const override { return chosen_->textWidth(text); }
    [[nodiscard]] double textHeight(const QString& text) const override { return chosen_->textHeight(text); }
    void text(Punto at, const QString& text) override { chosen_->text(at, text); }
    void line(Punto from, Punto to, int width) override { chosen_->line(from, to, width); }
    void box(Punto from, Punto to, int width, std::optional<quint32> fill) override {
        chosen_->box(from, to, width, fill);
    }
    void picture(Immagine picture, Punto at, Punto size) override { chosen_->picture(picture, at, size); }
    [[nodiscard]] int page() const override { return chosen_->page(); }
    void newPage() override { chosen_->newPage(); }
    bool endDoc() override { return chosen_->endDoc(); }
    void dropDoc() override { chosen_->dropDoc(); }

    /// What a program's end does: an open document is ended, the default printer is current again.
    void reset();
    /// What was recorded since the last call, and the name of the current printer.
    [[nodiscard]] QJsonObject take();

  private:
    RecordingPrinter record_;
    PdfPrinter pdf_;
    Printer* chosen_ = &record_;
};

} // namespace vanzer::batch
