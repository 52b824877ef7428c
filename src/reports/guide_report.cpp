// SPDX-License-Identifier: MIT
#include "reports/guide_report.h"

#include "core/text.h"

namespace vanzer {

using enum Posizione;

namespace {

constexpr double lastGuideLine = 280; ///< mm; a row below it goes to the next page
constexpr double leftEdge = 5;        ///< mm
constexpr double rowSize = 8;         ///< points

using Headings = std::array<const char16_t*, 5>;
constexpr Headings nameHeadings{u"Località", u"Località", u"Località", u"Località", u"Località"};
constexpr Headings entryHeadings{u"Località", u"Tipo", u"Gruppo", u"Descrizione", u"Sosta"};

} // namespace

ReportGuida::ReportGuida(Foglio& sheet, DettaglioGuida detail, QString title, const Piede& foot)
    : sheet_(sheet), detail_(detail), title_(std::move(title)), foot_(foot), x_(edgesOf(detail)) {}

ReportGuida::Edges ReportGuida::edgesOf(DettaglioGuida detail) {
    // mm
    static constexpr std::array<double, columns> entryWidths{40, 15, 15, 110, 15};
    constexpr double nameWidth = 38;
    Edges edges{leftEdge};
    for (std::size_t i = 0; i < columns; ++i)
        edges[i + 1] = edges[i] + (detail == DettaglioGuida::Voci ? entryWidths[i] : nameWidth);
    return edges;
}

void ReportGuida::StampaIntestaPaginaGuida() {
    sheet_.setUp();
    y_ = 15;
    sheet_.immagine(Immagine::LogoSito, 10, 0, 15);
    sheet_.StampaTesto(title_, y_, x_[1], x_[columns], {.dimensione = 10, .grassetto = true, .posizione = Centro});
    y_ += interlinea + 3;
    sheet_.fill(verdeChiaro);
    sheet_.penna(3);
    sheet_.riquadro(x_[0] - 2, y_ - 5, x_[columns], y_ + 1);
    sheet_.fill({});
    sheet_.penna(1);
    const Headings& headings = detail_ == DettaglioGuida::Voci ? entryHeadings : nameHeadings;
    for (std::size_t i = 0; i < columns; ++i)
        sheet_.StampaTesto(QString::fromUtf16(headings[i]), y_, x_[i], x_[i + 1],
                           {.dimensione = rowSize, .grassetto = true, .posizione = Centro});
    for (std::size_t i = 1; i < columns; ++i)
        sheet_.linea(x_[i] - 1, y_ - 5, x_[i] - 1, y_ + 1);
    nextName_ = 0;
    top_ = roundToInt(y_ + 2);
    y_ += interlinea + 2;
}

void ReportGuida::StampaFinePaginaGuida() {
    if (y_ < nessunaPagina) {
        for (std::size_t i = 1; i < columns; ++i)
            sheet_.linea(x_[i] - 1, top_, x_[i] - 1, y_ - interlinea);
    }
    StampaFinePagina(sheet_, foot_, y_, top_, x_[0], x_[3], x_[columns]);
}

void ReportGuida::cell(std::size_t column, const QString& text, Posizione at) {
    sheet_.StampaTesto(text, y_, x_[column], x_[column + 1], {.dimensione = rowSize, .posizione = at});
}

void ReportGuida::prossimaRiga() {
    sheet_.linea(x_[0] - 2, y_, x_[columns], y_);
    nextName_ = 0;
    y_ += interlinea;
}

void ReportGuida::StampaRigaGuidaCitta(const VoceStampata& entry) {
    if (y_ > lastGuideLine) {
        StampaFinePaginaGuida();
        StampaIntestaPaginaGuida();
    }
    if (detail_ == DettaglioGuida::Nomi) {
        cell(nextName_, entry.localita, Sinistra);
        if (++nextName_ == columns)
            prossimaRiga();
        return;
    }
    cell(0, entry.localita, Sinistra);
    cell(1, entry.categoria, Sinistra);
    cell(2, entry.gruppo, Centro);
    cell(3, entry.descrizione, Sinistra);
    cell(4, entry.tempo, Centro);
    prossimaRiga();
}

bool ReportGuida::chiude() {
    if (y_ >= nessunaPagina)
        return false;
    if (nextName_ > 0)
        y_ += interlinea;
    StampaFinePaginaGuida();
    return true;
}

} // namespace vanzer
