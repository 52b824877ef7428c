#include "schedule/preparation_screen.h"

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

std::vector<TappaDaPreparare> readLegs(const Grid& grid) {
    std::vector<TappaDaPreparare> legs;
    legs.reserve(static_cast<std::size_t>(grid.rows()));
    for (int r = 1; r < grid.rows(); ++r)
        legs.push_back(
            {r, grid.cell(r, 1), grid.cell(r, 2), chilometri(grid.cell(r, 3)), grid.cell(r, 4), grid.cell(r, 7)});
    return legs;
}

/// A stop as text; one that had to give way is "01".
QString stopText(float stop, QChar decimalMark) {
    return stop == 1 ? QStringLiteral("01") : testoNumero(stop, decimalMark);
}

void showWorkingRow(Form& form, int row, const RigaDiLavoro& work) {
    Grid& grid = form.mfgCopia;
    using enum RigaDiLavoro::Tipo;
    if (work.tipo == Tappa) {
        for (const int c : {0, 2, 3, 4, 5, 6})
            grid.setCell(row, c, form.mfgTab.cell(work.tappa, c));
    }
    grid.setCell(row, 1, work.nome);
    grid.setCell(row, colCategoria, work.nota);
    if (work.tipo == SostaItinerario)
        grid.setCell(row, colSostaFissa, stopText(work.sostaFissa, form.ambiente.decimalMark));
    if (work.tipo == SostaGuida)
        grid.setCell(row, colVoceGuida, stopText(work.sostaGuida, form.ambiente.decimalMark));
    if (work.fineGiorno)
        grid.setCell(row, colFineGiorno, QStringLiteral("1"));
    if (work.tipo == Menzione)
        grid.setCell(row, colMenzione, QStringLiteral("-1"));
}

void showWorkingRows(Form& form, const std::vector<RigaDiLavoro>& rows) {
    Grid& grid = form.mfgCopia;
    const SenzaRidisegno quiet(grid);
    grid.setRows(1);
    grid.setColumns(form.mfgTab.columns());
    grid.clearCells();
    ImpostaGriglia(form, Disposizione::RigheDiLavoro);
    grid.setRows(static_cast<int>(rows.size()) + 1);
    for (std::size_t i = 0; i < rows.size(); ++i)
        showWorkingRow(form, static_cast<int>(i) + 1, rows[i]);
    form.stato.RigaCaricata = static_cast<int>(rows.size());
}

std::vector<TestiTappa> legTexts(const Grid& grid) {
    std::vector<TestiTappa> texts(static_cast<std::size_t>(grid.rows()));
    for (int r = 1; r < grid.rows(); ++r)
        texts[static_cast<std::size_t>(r)] = {grid.cell(r, 2), grid.cell(r, 4)};
    return texts;
}

} // namespace

CalcoloPreparato PreparaTabellaPerCalcoloViandoria(Form& form) {
    StatoViaggio& s = form.stato;
    ControllaVariabiliConvertite(form);
    PulisciFinestre(form);
    SettaAZeroFlaGVisto(form);
    form.lblElaborazione.setCaption(QStringLiteral("Elaborazione delle soste e guida città"));
    s.PercentualeTotale = form.mfgTab.rows() - 1;
    form.tappeConservate = form.mfgTab.contents();

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
    CalcoloPreparato prepared{preparaRighe(readLegs(form.mfgTab), with), legTexts(form.mfgTab)};
    guide.scrive();
    showWorkingRows(form, prepared.lavoro.righe);
    return prepared;
}

} // namespace vanzer
