// SPDX-License-Identifier: MIT
#include "batch/recording_printer.h"

#include <utility>

namespace vanzer::batch {

namespace {

/// Width of a character and height of a line, in mm per point of the font's size.
constexpr double plainWidth = 0.19;
constexpr double boldWidth = 0.21;
constexpr double lineHeight = 0.42;

} // namespace

RecordingPrinter::RecordingPrinter() {
    font_.name = QStringLiteral("Times new roman");
}

double RecordingPrinter::textWidth(const QString& text) const {
    const auto characters = static_cast<double>(text.toUcs4().size());
    return characters * font_.size * (font_.bold ? boldWidth : plainWidth);
}

double RecordingPrinter::textHeight(const QString& /*text*/) const {
    return lineHeight * font_.size;
}

void RecordingPrinter::openPage() {
    ++page_;
    recorded_.emplace_back();
}

void RecordingPrinter::draw(Operazione operation) {
    if (page_ == 0)
        openPage();
    // The operations so far were taken while the page is still being drawn.
    if (recorded_.empty())
        recorded_.emplace_back();
    recorded_.back().push_back(std::move(operation));
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

bool RecordingPrinter::endDoc() {
    if (page_ == 0)
        return true;
    page_ = 0;
    ++documents_;
    return true;
}

QJsonArray RecordingPrinter::takePages() {
    QJsonArray pages;
    for (const Pagina& drawn : std::exchange(recorded_, {})) {
        QJsonArray operations;
        for (const Operazione& operation : drawn)
            operations.append(operationAnswer(operation));
        pages.append(operations);
    }
    return pages;
}

} // namespace vanzer::batch
