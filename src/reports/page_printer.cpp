// SPDX-License-Identifier: MIT
#include "reports/page_printer.h"

#include <utility>

namespace vanzer {

namespace {

constexpr double penStep = 0.1; // mm

} // namespace

PagePrinter::PagePrinter() : wantedFont_(QStringLiteral("Times new roman")) {}

template<typename Step> void PagePrinter::orDrop(Step step) {
    try {
        step();
    } catch (const PrinterError&) {
        PagePrinter::dropDoc();
        throw;
    }
}

void PagePrinter::setFontName(const QString& name) {
    if (name == wantedFont_)
        return;
    wantedFont_ = name;
    font_.family.clear();
}

const paper::Font& PagePrinter::font() const {
    if (font_.family.isEmpty())
        font_.family = fonts_.typefaceFor(wantedFont_).family;
    if (font_.family.isEmpty())
        throw PrinterError{QStringLiteral("Non è installato nessun carattere di stampa.")};
    return font_;
}

void PagePrinter::beginOnce() {
    if (page_ > 0)
        return;
    orDrop([this] { output_ = begin(); });
    page_ = 1;
}

void PagePrinter::draw(paper::Drawing drawing) {
    beginOnce();
    if (output_ != nullptr)
        drawn_.push_back(std::move(drawing));
}

void PagePrinter::text(Punto at, const QString& text) {
    draw(paper::DrawnText{{at.x, at.y + fonts_.ascent(font())}, text, font()});
}

void PagePrinter::line(Punto from, Punto to, int width) {
    draw(paper::DrawnLine{from, to, width * penStep});
}

void PagePrinter::box(Punto from, Punto to, int width, std::optional<quint32> fill) {
    draw(paper::DrawnBox{from, to, width * penStep, fill});
}

/// Draws the product's sign, for either picture.
void PagePrinter::picture(Immagine /*picture*/, Punto at, Punto size) {
    draw(paper::DrawnSign{at, size});
}

void PagePrinter::newPage() {
    beginOnce();
    if (output_ != nullptr)
        orDrop([this] { output_->write(std::exchange(drawn_, {})); });
    ++page_;
}

bool PagePrinter::endDoc() {
    madeFiles_.clear();
    if (page_ == 0)
        return true;
    bool sent = false;
    orDrop([this, &sent] {
        if (output_ == nullptr)
            return;
        if (!drawn_.empty() || page_ == 1) // leaves out a blank last page
            output_->write(std::exchange(drawn_, {}));
        sent = output_->finish();
        if (sent)
            madeFiles_ = output_->files();
    });
    PagePrinter::dropDoc();
    return sent;
}

void PagePrinter::dropDoc() {
    page_ = 0;
    output_.reset();
    drawn_.clear();
}

} // namespace vanzer
