// SPDX-License-Identifier: MIT
#include "desktop/desktop_printer.h"

#include <utility>
#include <vector>

#include <QDir>
#include <QPrinterInfo>

#include "desktop/paper_output.h"
#include "desktop/print_preview.h"

namespace vanzer::desktop {

namespace {

const QString pdfName = QStringLiteral("PDF");
const QString pdfFilter = QStringLiteral("PDF (*.pdf)|*.pdf");
const QString pdfEnding = QStringLiteral(".pdf");

bool same(const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

bool isPdf(const QString& printer) {
    return same(printer, pdfName);
}

/// Keeps the pages until the user has seen the preview.
class PreviewedOutput : public PageOutput {
  public:
    using Approval = std::function<bool(const std::vector<paper::Page>& pages)>;
    PreviewedOutput(std::unique_ptr<PageOutput> output, Approval approved)
        : output_(std::move(output)), approved_(std::move(approved)) {}

    void write(paper::Page page) override { pages_.push_back(std::move(page)); }

    bool finish() override {
        if (!approved_(pages_))
            return false;
        for (paper::Page& page : pages_)
            output_->write(std::move(page));
        return output_->finish();
    }

    [[nodiscard]] QStringList files() const override { return output_->files(); }

  private:
    std::unique_ptr<PageOutput> output_;
    Approval approved_;
    std::vector<paper::Page> pages_;
};

} // namespace

/// Leaves out a printer of the platform named "PDF": it does no more than ours.
QStringList DesktopPrinter::names() const {
    QStringList names = QPrinterInfo::availablePrinterNames();
    names.removeIf(isPdf);
    return names << pdfName;
}

QString DesktopPrinter::current() const {
    if (!chosen_.isEmpty())
        return chosen_;
    const QString platforms = QPrinterInfo::defaultPrinterName();
    return platforms.isEmpty() ? pdfName : platforms;
}

void DesktopPrinter::choose(const QString& name) {
    for (const QString& printer : names()) {
        if (!same(printer, name))
            continue;
        if (printer != current())
            endDoc();
        chosen_ = printer;
        return;
    }
}

/// The output to a PDF file; null if the user cancels the dialog.
std::unique_ptr<PageOutput> DesktopPrinter::toPdf() {
    QString path = files_.save(pdfFilter, Ricopertura::ChiedeIlDialogo);
    if (path.isEmpty())
        return nullptr;
    if (!path.endsWith(pdfEnding, Qt::CaseInsensitive))
        path += pdfEnding;
    if (const QString reserved = nomeRiservato ? nomeRiservato(path) : QString(); !reserved.isEmpty())
        throw PrinterError{QStringLiteral("Il file %1 %2").arg(QDir::toNativeSeparators(path), reserved)};
    return pdfOutput(path, fonts(), clock_.now());
}

std::unique_ptr<PageOutput> DesktopPrinter::begin() {
    const QString printer = current();
    std::unique_ptr<PageOutput> output = isPdf(printer) ? toPdf() : paperOutput(printer);
    if (output == nullptr || !previewWanted())
        return output;
    return std::make_unique<PreviewedOutput>(std::move(output), [this, printer](const auto& pages) {
        return PrintPreview(pages, fonts(), printer, opening()).exec() == QDialog::Accepted;
    });
}

} // namespace vanzer::desktop
