#include "schedule/preparation_screen.h"

#include <algorithm>
#include <array>
#include <numeric>

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

/// What a working row shows of its leg.
using CelleTappa = std::array<QString, 7>;

std::vector<CelleTappa> shownOfLegs(const Grid::Rows& rows) {
    std::vector<CelleTappa> legs(rows.size());
    for (std::size_t r = 0; r < rows.size(); ++r)
        std::ranges::copy_n(rows[r].begin(), std::min(std::ssize(legs[r]), std::ssize(rows[r])), legs[r].begin());
    return legs;
}

Celle workingRow(const RigaDiLavoro& work, const std::vector<CelleTappa>& legs, QChar decimalMark) {
    using enum RigaDiLavoro::Tipo;
    Celle cells;
    if (work.tipo == Tappa) {
        const CelleTappa& leg = legs[static_cast<std::size_t>(work.tappa - 1)];
        cells.assign(leg.begin(), leg.end());
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

/// Nobody sees this table but who asks for it: its rows are made then.
void showWorkingRows(Form& form, const std::shared_ptr<const RigheDiLavoro>& work, const Grid::Rows& legs) {
    Grid& grid = form.mfgCopia;
    const std::vector<RigaDiLavoro>& rows = work->righe;
    const SenzaRidisegno quiet(grid);
    grid.setRows(1);
    grid.setColumns(form.mfgTab.columns());
    grid.clearCells();
    ImpostaGriglia(form, Disposizione::RigheDiLavoro);
    grid.setRows(static_cast<int>(rows.size()) + 1);
    std::vector<int> columns(static_cast<std::size_t>(grid.columns()));
    std::iota(columns.begin(), columns.end(), 0);
    grid.setColumnsLater(1, columns,
                         [work, shown = shownOfLegs(legs), mark = form.ambiente.decimalMark](int row, Celle& cells) {
                             if (const auto at = static_cast<std::size_t>(row - 1); at < work->righe.size())
                                 cells = workingRow(work->righe[at], shown, mark);
                         });
    form.stato.RigaCaricata = static_cast<int>(rows.size());
}

} // namespace

std::shared_ptr<const RigheDiLavoro> PreparaTabellaPerCalcoloViandoria(Form& form) {
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
    auto prepared = std::make_shared<const RigheDiLavoro>(preparaRighe(legsToPrepare(*form.tappeConservate), with));
    guide.scrive();
    showWorkingRows(form, prepared, *form.tappeConservate);
    return prepared;
}

} // namespace vanzer
