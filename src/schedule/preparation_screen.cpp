#include "schedule/preparation_screen.h"

#include <algorithm>

#include "core/text.h"
#include "itinerary/leg_table_screen.h"
#include "schedule/preparation.h"
#include "schedule/totals_screen.h"
#include "window/grid_layouts.h"
#include "window/modes.h"
#include "window/parameters.h"

namespace vanzer {

namespace {

/// Columns of the hidden grid beyond those of the leg table.
constexpr int colCategoria = 12;
constexpr int colSostaFissa = 14;
constexpr int colVoceGuida = 15;
constexpr int colFineGiorno = 16;
constexpr int colMenzione = 18;

using Celle = std::vector<QString>;

QString cell(const Celle& cells, std::size_t column) {
    return column < cells.size() ? cells[column] : QString();
}

std::vector<TappaDaPreparare> legsToPrepare(const Grid::Rows& rows) {
    std::vector<TappaDaPreparare> legs;
    legs.reserve(rows.size());
    int number = 0;
    for (const Celle& cells : rows)
        legs.push_back(
            {++number, cell(cells, 1), cell(cells, 2), chilometri(cell(cells, 3)), cell(cells, 4), cell(cells, 7)});
    return legs;
}

/// A stop as text; one that had to give way is "01".
QString stopText(float stop, QChar decimalMark) {
    return stop == 1 ? QStringLiteral("01") : testoNumero(stop, decimalMark);
}

Celle workingRow(const RigaDiLavoro& work, const Grid::Rows& legs, QChar decimalMark) {
    using enum RigaDiLavoro::Tipo;
    Celle cells;
    if (work.tipo == Tappa) {
        const Celle& leg = legs[static_cast<std::size_t>(work.tappa - 1)];
        cells.assign(leg.begin(), leg.begin() + std::min<std::ptrdiff_t>(7, std::ssize(leg)));
    }
    const auto write = [&cells](std::size_t column, const QString& text) {
        if (cells.size() <= column)
            cells.resize(column + 1);
        cells[column] = text;
    };
    write(1, work.nome);
    if (!work.nota.isEmpty())
        write(colCategoria, work.nota);
    if (work.tipo == SostaItinerario)
        write(colSostaFissa, stopText(work.sostaFissa, decimalMark));
    if (work.tipo == SostaGuida)
        write(colVoceGuida, stopText(work.sostaGuida, decimalMark));
    if (work.fineGiorno)
        write(colFineGiorno, QStringLiteral("1"));
    if (work.tipo == Menzione)
        write(colMenzione, QStringLiteral("-1"));
    return cells;
}

void showWorkingRows(Form& form, const std::vector<RigaDiLavoro>& rows, const Grid::Rows& legs) {
    Grid& grid = form.mfgCopia;
    const SenzaRidisegno quiet(grid);
    grid.setRows(1);
    grid.setColumns(form.mfgTab.columns());
    grid.clearCells();
    ImpostaGriglia(form, Disposizione::RigheDiLavoro);
    Grid::Rows cells;
    cells.reserve(rows.size());
    for (const RigaDiLavoro& row : rows)
        cells.push_back(workingRow(row, legs, form.ambiente.decimalMark));
    grid.setContents(std::move(cells));
    form.stato.RigaCaricata = static_cast<int>(rows.size());
}

} // namespace

RigheDiLavoro PreparaTabellaPerCalcoloViandoria(Form& form) {
    StatoViaggio& s = form.stato;
    ControllaVariabiliConvertite(form);
    PulisciFinestre(form);
    SettaAZeroFlaGVisto(form);
    form.lblElaborazione.setCaption(QStringLiteral("Elaborazione delle soste e guida città"));
    s.PercentualeTotale = form.mfgTab.rows() - 1;
    form.tappeConservate = form.mfgTab.takeContents();

    SegniGuida guide(form.archivio);
    const Preparazione with{
        .fonte = fonteSoste(form.cmbSoste.text()),
        .oreVisitaGiorno = s.OreVisitaGiorno,
        .guida = [&guide](const QString& place) { return guide.usaLuogo(place); },
        .categoria =
            [&form](int category) {
                const auto i = static_cast<std::size_t>(category);
                return i < form.TipiGuidaDescrizione.size() ? form.TipiGuidaDescrizione[i] : QString();
            },
        .avanza =
            [&form, &s](int row) {
                s.PercentualeCorrente = row;
                AggiornaPercentuale(form);
            },
    };
    RigheDiLavoro prepared = preparaRighe(legsToPrepare(*form.tappeConservate), with);
    guide.scrive();
    showWorkingRows(form, prepared.righe, *form.tappeConservate);
    return prepared;
}

} // namespace vanzer
