// SPDX-License-Identifier: MIT
#include "schedule/preparation_screen.h"

#include "core/leg_columns.h"
#include "core/text.h"
#include "schedule/preparation.h"
#include "store/guide_marks.h"
#include "trip/leg_table_screen.h"
#include "trip/parameter_fields_screen.h"
#include "trip/totals_screen.h"
#include "trip/trip_numbers.h"
#include "window/grid_layouts.h"
#include "window/modes.h"
#include "window/progress.h"

namespace vanzer {

namespace {

constexpr int colonneTappa = 7; ///< columns of the leg that a working row shows

/// Columns that only the hidden grid has.
constexpr int colCategoria = 12;
constexpr int colSostaFissa = 14;
constexpr int colVoceGuida = 15;
constexpr int colFineGiorno = 16;
constexpr int colMenzione = 18;

std::vector<TappaDaPreparare> legsToPrepare(const TestiTabella& rows) {
    std::vector<TappaDaPreparare> legs;
    legs.reserve(static_cast<std::size_t>(rows.rows()));
    for (int r = 0; r < rows.rows(); ++r)
        legs.push_back({r + 1, rows.text(r, tappaLuogo), rows.text(r, tappaStrada), chilometri(rows.text(r, tappaKm)),
                        rows.text(r, tappaTipo), rows.text(r, tappaSosta)});
    return legs;
}

/// A stop as text. One that was shrunk because the other source counts is "01".
QString stopText(float stop, QChar decimalMark) {
    return stop == 1 ? QStringLiteral("01") : testoNumero(stop, decimalMark);
}

void writeWorkingRow(RigaDiTesti cells, const RigaDiLavoro& work, const TestiTabella& legs, QChar decimalMark) {
    using enum RigaDiLavoro::Tipo;
    if (work.tipo == Tappa) {
        for (int column = 0; column < colonneTappa; ++column)
            cells[column] = legs.text(work.tappa - 1, column);
    }
    cells[1] = nomeMostrato(work);
    if (!work.nota.isEmpty())
        cells[colCategoria] = work.nota;
    if (work.tipo == SostaItinerario)
        cells[colSostaFissa] = stopText(work.sostaFissa, decimalMark);
    if (work.tipo == SostaGuida)
        cells[colVoceGuida] = stopText(work.sostaGuida, decimalMark);
    if (work.fineGiorno)
        cells[colFineGiorno] = QStringLiteral("1");
    if (work.tipo == Menzione)
        cells[colMenzione] = QStringLiteral("-1");
}

void showWorkingRows(Form& form, const std::vector<RigaDiLavoro>& work) {
    TestiTabella rows;
    rows.setRows(static_cast<int>(work.size()));
    for (int row = 0; row < rows.rows(); ++row)
        writeWorkingRow(RigaDiTesti(rows, row), work[static_cast<std::size_t>(row)], *form.tappeConservate,
                        form.ambiente.decimalMark);
    Grid& grid = form.mfgCopia;
    const SenzaRidisegno quiet(grid);
    grid.setRows(1);
    grid.setColumns(form.mfgTab.columns());
    grid.clearCells();
    ImpostaGriglia(form, Disposizione::RigheDiLavoro);
    grid.setContents(std::move(rows));
    form.stato.RigaCaricata = static_cast<int>(work.size());
}

} // namespace

std::shared_ptr<const RigheDiLavoro> PreparaTabellaPerCalcoloViandoria(Form& form) {
    StatoFinestra& s = form.stato;
    ControllaVariabiliConvertite(form);
    PulisciFinestre(form);
    SettaAZeroFlaGVisto(form);
    form.lblElaborazione.setCaption(QStringLiteral("Elaborazione delle soste e guida città"));
    s.PercentualeTotale = form.mfgTab.rows() - 1;
    form.tappeConservate = form.mfgTab.takeContents();

    store::SegniGuida guide(form.archivio);
    const Preparazione with{
        .fonte = fonteSoste(form.cmbSoste.text()),
        .oreVisitaGiorno = form.viaggio->OreVisitaGiorno,
        .guida = [&guide](const QString& place) { return guide.usePlace(place); },
        .categoria =
            [&form](int category) {
                const auto i = static_cast<std::size_t>(category);
                return i < form.TipiGuidaDescrizione.size() ? form.TipiGuidaDescrizione[i] : QString();
            },
        .advance =
            [&form, &s](int row) {
                s.PercentualeCorrente = row;
                AggiornaPercentuale(form);
            },
    };
    auto prepared = std::make_shared<const RigheDiLavoro>(prepareRows(legsToPrepare(*form.tappeConservate), with));
    guide.write();
    showWorkingRows(form, prepared->righe);
    return prepared;
}

} // namespace vanzer
