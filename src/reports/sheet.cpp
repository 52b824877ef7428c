// SPDX-License-Identifier: MIT
#include "reports/sheet.h"

#include "core/text.h"

namespace vanzer {

namespace {

constexpr double smallest = 6;     ///< points; a smaller text isn't shrunk further
constexpr double shrinking = 0.33; ///< points of each step
constexpr double beside = 1;       ///< mm that stay free beside a text in its box

const QString condensed = QStringLiteral("Agency FB");
const QString serif = QStringLiteral("Times new roman");

} // namespace

void Foglio::setUp() {
    printer_.setPaperSize(9);
    printer_.setOrientation(1);
    printer_.setScaleMode(6);
    pen_ = 1;
    fill_.reset();
    SettaFontNamePrinter();
}

void Foglio::SettaFontNamePrinter() {
    printer_.setFontName(condensed);
    const QString given = printer_.fontName();
    if (given != condensed && !uguale(given, condensed))
        printer_.setFontName(serif);
}

void Foglio::setFont(const Stile& style) {
    printer_.setBold(style.grassetto);
    printer_.setItalic(style.corsivo);
    printer_.setFontSize(style.dimensione);
}

double Foglio::larghezza(const QString& text, const Stile& style) {
    setFont(style);
    return printer_.textWidth(text);
}

void Foglio::StampaTesto(const QString& text, double y, double left, double right, const Stile& style) {
    const QString t = Trim(text);
    if (t.isEmpty())
        return;
    setFont(style);
    double size = style.dimensione;
    while (printer_.textWidth(t) + beside >= right - left && size >= smallest) {
        size -= shrinking;
        printer_.setFontSize(size);
    }
    double x = left;
    if (style.posizione == Posizione::Centro)
        x = (left + right) / 2 - printer_.textWidth(t) / 2 - 1;
    else if (style.posizione == Posizione::Destra)
        x = right - printer_.textWidth(t) - 3;
    printer_.text({x, y - printer_.textHeight(t)}, t);
}

void Foglio::linea(double x1, double y1, double x2, double y2) {
    printer_.line({x1, y1}, {x2, y2}, pen_);
}

void Foglio::riquadro(double x1, double y1, double x2, double y2) {
    printer_.box({x1, y1}, {x2, y2}, pen_, fill_);
}

void Foglio::immagine(Immagine picture, double x, double y, double size) {
    printer_.picture(picture, {x, y}, {size, size});
}

void StampaFinePagina(Foglio& sheet, const Piede& foot, double y, double top, double left, double dateRight,
                      double right) {
    constexpr double noPage = 800; // mm; far below the sheet
    if (y >= noPage)
        return;
    const Stile small{.dimensione = 6, .corsivo = true};
    sheet.StampaTesto(foot.data, y, left, dateRight, small);
    sheet.StampaTesto(foot.finestra, y, 1, right, {.dimensione = 6, .corsivo = true, .posizione = Posizione::Destra});
    sheet.penna(3);
    sheet.fill({});
    sheet.riquadro(left - 2, top, right, y - interlinea);
    sheet.nuovaPagina();
}

} // namespace vanzer
