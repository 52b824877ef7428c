#include "schedule/preparation_screen.h"

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

constexpr int colonneTappa = 7; ///< what a working row shows of its leg

/// Columns of the hidden grid beyond those of the leg table.
constexpr int colCategoria = 12;
constexpr int colSostaFissa = 14;
constexpr int colVoceGuida = 15;
constexpr int colFineGiorno = 16;
constexpr int colMenzione = 18;

std::vector<TappaDaPreparare> legsToPrepare(const TestiTabella& rows) {
    std::vector<TappaDaPreparare> legs;
    legs.reserve(static_cast<std::size_t>(rows.rows()));
    for (int r = 0; r < rows.rows(); ++r)
        legs.push_back(
            {r + 1, rows.text(r, 1), rows.text(r, 2), chilometri(rows.text(r, 3)), rows.text(r, 4), rows.text(r, 7)});
    return legs;
}

/// A stop as text; one that had to give way is "01".
QString stopText(float stop, QChar decimalMark) {
    return stop == 1 ? QStringLiteral("01") : testoNumero(stop, decimalMark);
}

/// The legs of a calculation as they stood, with what nobody had looked at of their texts.
struct TappeMostrate {
    TestiTabella testi;
    Grid::Sospesi sospesi;

    /// All texts of a leg, by its row in the table, are there from here on.
    void finisce(int leg) {
        if (leg >= sospesi.da && leg < sospesi.fino)
            sospesi.fa(leg, RigaDiTesti(testi, leg - 1));
    }
};

void writeWorkingRow(RigaDiTesti cells, const RigaDiLavoro& work, TappeMostrate& legs, QChar decimalMark) {
    using enum RigaDiLavoro::Tipo;
    if (work.tipo == Tappa) {
        legs.finisce(work.tappa);
        for (int column = 0; column < colonneTappa; ++column)
            cells[column] = legs.testi.text(work.tappa - 1, column);
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

/// Nobody sees this table but who asks for it: its rows are made then.
void showWorkingRows(Form& form, const std::shared_ptr<const RigheDiLavoro>& work, TappeMostrate legs) {
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
    grid.setColumnsLater(
        1, columns,
        [work, legs = std::move(legs), mark = form.ambiente.decimalMark](int row, RigaDiTesti cells) mutable {
            if (const auto at = static_cast<std::size_t>(row - 1); at < work->righe.size())
                writeWorkingRow(cells, work->righe[at], legs, mark);
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
    auto [legs, unfinished] = form.mfgTab.takeUnfinished();
    form.totali = std::make_shared<TotaliTabella>(); // the old ones stay with what is unfinished
    form.tappeConservate = legs;

    SegniGuida guide(form.archivio);
    std::vector<std::shared_ptr<const void>> held; // a very long trip makes the reader forget on the way
    const Preparazione with{
        .fonte = fonteSoste(form.cmbSoste.text()),
        .oreVisitaGiorno = s.OreVisitaGiorno,
        .guida =
            [&](const QString& place) {
                SegniGuida::Voci entries = guide.usaLuogo(place);
                if (const auto& memory = form.archivio.guida().memoria(); held.empty() || held.back() != memory)
                    held.push_back(memory);
                return entries;
            },
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
    const auto prepared = std::make_shared<RigheDiLavoro>(preparaRighe(legsToPrepare(*form.tappeConservate), with));
    prepared->tenute = std::move(held);
    guide.scrive();
    showWorkingRows(form, prepared, {std::move(legs), std::move(unfinished)});
    return prepared;
}

} // namespace vanzer
