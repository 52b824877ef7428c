// SPDX-License-Identifier: MIT
// The printers of the batch program. "Registro", the default, records drawings. "PDF" asks for its file and writes the
// same PDF as the desktop.
#pragma once

#include <utility>

#include <QJsonObject>

#include "batch/recording_printer.h"
#include "reports/page_printer.h"
#include "toolkit/ports.h"

namespace vanzer::batch {

/// If the file can't be written, this shows only when the document ends.
class PdfPrinter : public PagePrinter {
  public:
    PdfPrinter(FileDialogs& files, const Clock& clock, QString archive)
        : files_(files), clock_(clock), archive_(std::move(archive)) {}

    [[nodiscard]] QStringList names() const override { return {current()}; }
    [[nodiscard]] QString current() const override { return QStringLiteral("PDF"); }
    void choose(const QString& /*name*/) override {}
    /// A document without a file, as the user cancelled the dialog, counts as sent.
    bool endDoc() override;
    void dropDoc() override;

  protected:
    [[nodiscard]] std::unique_ptr<PageOutput> begin() override;

  private:
    FileDialogs& files_;
    const Clock& clock_;
    QString archive_;
    QString notWritten_; ///< the file of the current document if it can't be written
};

class BatchPrinter : public Printer {
  public:
    /// `files` asks for the file of a PDF, `clock` gives its time; both must outlive the printer. No PDF may replace
    /// `archive`.
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

    /// Resets as the end of a program does: ends an open document and makes the default printer current.
    void reset();
    /// Returns what was recorded since the last call, and the name of the current printer.
    [[nodiscard]] QJsonObject take();

  private:
    RecordingPrinter record_;
    PdfPrinter pdf_;
    Printer* chosen_ = &record_;
};

} // namespace vanzer::batch
