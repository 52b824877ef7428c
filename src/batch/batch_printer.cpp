// SPDX-License-Identifier: MIT
#include "batch/batch_printer.h"

#include "store/outside_files.h"

namespace vanzer::batch {

namespace {

const QString pdfFilter = QStringLiteral("PDF (*.pdf)|*.pdf");

} // namespace

std::unique_ptr<PageOutput> PdfPrinter::begin() {
    const QString path = files_.save(pdfFilter, Ricopertura::ChiedeIlDialogo);
    if (path.isEmpty())
        return nullptr;
    if (const QString reserved = store::motivoRiservato(path, archive_); !reserved.isEmpty())
        throw PrinterError{QStringLiteral("Il file %1 %2").arg(path, reserved)};
    try {
        return pdfOutput(path, fonts(), clock_.now());
    } catch (const PrinterError&) {
        notWritten_ = path;
        return nullptr;
    }
}

bool PdfPrinter::endDoc() {
    PagePrinter::endDoc();
    if (!notWritten_.isEmpty())
        throw PrinterError{QStringLiteral("Impossibile scrivere il file ") + std::exchange(notWritten_, {})};
    return true;
}

void PdfPrinter::dropDoc() {
    notWritten_.clear();
    PagePrinter::dropDoc();
}

void BatchPrinter::choose(const QString& name) {
    for (Printer* const printer : {static_cast<Printer*>(&record_), static_cast<Printer*>(&pdf_)}) {
        if (printer->current().compare(name, Qt::CaseInsensitive) != 0)
            continue;
        if (printer != chosen_)
            endDoc();
        chosen_ = printer;
    }
}

void BatchPrinter::reset() {
    try {
        endDoc();
    } catch (const PrinterError&) { // nobody to report it to
    }
    chosen_ = &record_;
}

QJsonObject BatchPrinter::take() {
    return {{"printer", current()}, {"pages", record_.takePages()}, {"documents", record_.takeDocuments()}};
}

} // namespace vanzer::batch
