#include "batch/recording_printer.h"

#include <utility>

#include <QJsonArray>

#include "batch/pdf_file.h"
#include "store/outside_files.h"

namespace vanzer::batch {

namespace {

/// mm for each point of the font's size.
constexpr double plainWidth = 0.19;
constexpr double boldWidth = 0.21;
constexpr double lineHeight = 0.42;

const QString onlyFont = QStringLiteral("Times new roman");
const QStringList printerNames{QStringLiteral("Registro"), QStringLiteral("PDF")};
const QString pdfFilter = QStringLiteral("PDF (*.pdf)|*.pdf");

} // namespace

RecordingPrinter::RecordingPrinter(FileDialogs& files, QString archive) : files_(files), archive_(std::move(archive)) {
    font_.name = onlyFont;
}

QStringList RecordingPrinter::names() const {
    return printerNames;
}

QString RecordingPrinter::current() const {
    return printerNames[static_cast<int>(device_)];
}

void RecordingPrinter::choose(const QString& name) {
    for (const Device device : {Device::Registro, Device::Pdf}) {
        if (printerNames[static_cast<int>(device)].compare(name, Qt::CaseInsensitive) != 0)
            continue;
        if (device != device_)
            endDoc();
        device_ = device;
    }
}

void RecordingPrinter::setFontName(const QString& /*name*/) {
    font_.name = onlyFont;
}

double RecordingPrinter::textWidth(const QString& text) const {
    const auto characters = static_cast<double>(text.toUcs4().size());
    return characters * font_.size * (font_.bold ? boldWidth : plainWidth);
}

double RecordingPrinter::textHeight(const QString& /*text*/) const {
    return lineHeight * font_.size;
}

void RecordingPrinter::openPage() {
    if (page_ == 0 && device_ == Device::Pdf) {
        pdfPath_ = files_.save(pdfFilter, Ricopertura::ChiedeIlDialogo);
        const QString reserved = pdfPath_.isEmpty() ? QString() : store::motivoRiservato(pdfPath_, archive_);
        if (!reserved.isEmpty())
            throw PrinterError{QStringLiteral("Il file %1 %2").arg(pdfPath_, reserved)};
    }
    ++page_;
    pages().emplace_back();
}

void RecordingPrinter::draw(Operazione operation) {
    if (page_ == 0)
        openPage();
    // Its earlier operations were taken while the page is still being drawn.
    if (pages().empty())
        pages().emplace_back();
    pages().back().push_back(std::move(operation));
}

void RecordingPrinter::text(Punto at, const QString& text) {
    draw({.kind = Operazione::Kind::Text, .a = at, .text = text, .font = font_});
}

void RecordingPrinter::line(Punto from, Punto to, int width) {
    draw({.kind = Operazione::Kind::Line, .a = from, .b = to, .width = width});
}

void RecordingPrinter::box(Punto from, Punto to, int width, std::optional<quint32> fill) {
    draw({.kind = Operazione::Kind::Box, .a = from, .b = to, .width = width, .fill = fill});
}

void RecordingPrinter::picture(Immagine /*picture*/, Punto at, Punto size) {
    draw({.kind = Operazione::Kind::Picture, .a = at, .b = size});
}

void RecordingPrinter::newPage() {
    if (page_ == 0)
        openPage();
    openPage();
}

/// A PDF without a file counts as sent: nobody asks for it again.
bool RecordingPrinter::endDoc() {
    if (page_ == 0)
        return true;
    page_ = 0;
    if (device_ == Device::Registro) {
        ++documents_;
        return true;
    }
    const std::vector<Pagina> drawn = std::exchange(pdf_, {});
    if (!pdfPath_.isEmpty() && !writePdf(pdfPath_, drawn))
        throw PrinterError{QStringLiteral("Impossibile scrivere il file ") + pdfPath_};
    return true;
}

void RecordingPrinter::dropDoc() {
    page_ = 0;
    pdf_.clear();
}

void RecordingPrinter::reset() {
    try {
        endDoc();
    } catch (const PrinterError&) { // nobody is left to be told
    }
    device_ = Device::Registro;
    font_ = {.name = onlyFont};
}

QJsonObject RecordingPrinter::take() {
    QJsonArray pages;
    for (const Pagina& drawn : std::exchange(recorded_, {})) {
        QJsonArray operations;
        for (const Operazione& operation : drawn)
            operations.append(operationAnswer(operation));
        pages.append(operations);
    }
    return {{"printer", current()}, {"pages", pages}, {"documents", std::exchange(documents_, 0)}};
}

} // namespace vanzer::batch
