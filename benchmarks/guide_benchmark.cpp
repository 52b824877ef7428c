// What the guide's commands cost as the guide grows: the same trip each time, its places with the same entries, and
// around them ten and a hundred times as many entries of other places. VANZER_PLACES names a file with one place a
// line, its name up to the first tab.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <unordered_set>
#include <vector>

#include <QFile>
#include <QTextStream>

#include "big_trip.h"
#include "core/place_name.h"
#include "core/text.h"
#include "guide/entries.h"
#include "itinerary/leg_editor_screen.h"
#include "itinerary/leg_table_screen.h"
#include "schedule/preparation_screen.h"
#include "timing.h"
#include "window/command.h"

namespace vanzer::bench {

namespace {

constexpr int legs = 1000;
constexpr int places = 600;
constexpr int longestName = 20; ///< with room for the mark of the start

/// Names that differ, in an order of chance that is the same in every run.
std::vector<QString> readPlaces() {
    QFile file(qEnvironmentVariable("VANZER_PLACES"));
    std::vector<QString> names;
    if (!file.open(QIODevice::ReadOnly))
        return names;
    std::unordered_set<QString> known;
    QTextStream text(&file);
    for (QString line; text.readLineInto(&line);) {
        const QString name = RiPulisceNomeLocalita(line.section(u'\t', 0, 0));
        if (name.size() <= longestName && known.insert(minuscolo(name)).second)
            names.push_back(name);
    }
    std::shuffle(names.begin(), names.end(), std::mt19937(1));
    return names;
}

/// Ten entries for every three places. Descriptions and groups are the same everywhere, as in the archives of users.
std::vector<GuideEntry> entriesOf(const std::vector<QString>& names, int count) {
    std::vector<GuideEntry> entries;
    for (std::size_t i = 0; static_cast<int>(entries.size()) < count; ++i) {
        const QString& name = names.at(i);
        entries.push_back(
            {name, QStringLiteral("01"), QStringLiteral("A"), QStringLiteral("Duomo"), QStringLiteral("00:15")});
        entries.push_back(
            {name, QStringLiteral("02"), QStringLiteral(" "), QStringLiteral("Museo civico"), QStringLiteral("00:30")});
        entries.push_back({name, QStringLiteral("05"), QStringLiteral("B-A"), QStringLiteral("Area di sosta"),
                           QStringLiteral("00:00")});
        if (i % 3 == 0)
            entries.push_back({name, QStringLiteral("07"), QStringLiteral(" "), QStringLiteral("Campeggio"),
                               QStringLiteral("00:00")});
    }
    return entries;
}

/// The trip passes twice through most of its places.
std::vector<QString> tripThrough(const std::vector<QString>& names) {
    std::vector<QString> trip;
    for (std::size_t i = 0; trip.size() < legs; ++i)
        trip.push_back(names[i % places]);
    return trip;
}

/// Times `work` on the trip with a guide of as many entries as told; `after` puts back what it changed.
void withGuide(benchmark::State& state, const std::function<void(BigTrip&)>& before,
               const std::function<void(BigTrip&)>& work, const std::function<void(BigTrip&)>& after) {
    const std::vector<QString> names = readPlaces();
    const auto count = static_cast<int>(state.range(0));
    if (static_cast<int>(names.size()) * 10 / 3 < count) {
        state.SkipWithError("VANZER_PLACES names no file with enough places");
        return;
    }
    BigTrip trip(tripThrough(names), entriesOf(names, count));
    before(trip);
    for (auto _ : state) {
        state.SetIterationTime(seconds([&] { work(trip); }));
        after(trip);
    }
}

void nothing(BigTrip& /*trip*/) {}

void openEditor(BigTrip& trip) {
    trip.form().cmdGuidaCitta.click();
}

void closeEditor(BigTrip& trip) {
    trip.form().cmdFineInserimento.click();
}

/// The row of the last entry of that description, in the open editor.
int rowOf(const Form& form, const QString& description) {
    int row = form.mfgTab.rows() - 1;
    while (row > 1 && form.mfgTab.cell(row, guidaDescrizione) != description)
        --row;
    return row;
}

void stores(BigTrip& trip, int row, const QString& description) {
    Form& form = trip.form();
    form.mfgTab.clickRow(row);
    form.txtGGruppo.setText(QStringLiteral("Z"));
    form.txtGDescr.setText(description);
    form.cmbGH.setText(QStringLiteral("01"));
    form.cmbGM.setText(QStringLiteral("00"));
    form.cmdSalvaRiga.click();
}

/// Stores an entry of its own at the place at the end of the list.
int storeOwnEntry(BigTrip& trip) {
    Form& form = trip.form();
    int row = rowOf(form, QStringLiteral("Duomo"));
    while (form.mfgTab.cell(row, guidaSegno) == segnoVoce)
        --row;
    stores(trip, row, QStringLiteral("Nuova"));
    return rowOf(form, QStringLiteral("Nuova"));
}

int openWithOwnEntry(BigTrip& trip) {
    openEditor(trip);
    return storeOwnEntry(trip);
}

void deleteRow(BigTrip& trip, int row) {
    trip.form().mfgTab.clickRow(row);
    trip.answer(rispostaSi);
    trip.form().cmdCancellaRiga.click();
}

void prepares(BigTrip& trip) {
    comando(trip.form(), [&trip] { benchmark::DoNotOptimize(PreparaTabellaPerCalcoloViandoria(trip.form())); });
}

void putsLegsBack(BigTrip& trip) {
    comando(trip.form(), [&trip] { RimetteTappe(trip.form()); });
}

} // namespace

void openGuide(benchmark::State& state) {
    withGuide(state, nothing, openEditor, closeEditor);
}

/// The first closing has put the groups in order; what it costs from then on.
void closeGuide(benchmark::State& state) {
    withGuide(state, openEditor, closeEditor, openEditor);
}

/// All of the trip's 600 groups put in order at the closing.
void closeGuideAndSortGroups(benchmark::State& state) {
    const auto unsort = [](BigTrip& trip) {
        comando(trip.form(), [&trip] {
            store::Database& archive = *trip.form().archivio.Db(0);
            archive.prepara("UPDATE GuidaCitta SET Gruppo = 'B-A' WHERE Gruppo = 'A-B'")->step();
        });
        openEditor(trip);
    };
    withGuide(state, openEditor, closeEditor, unsort);
}

void changeEntry(benchmark::State& state) {
    int row = 0;
    withGuide(
        state, [&row](BigTrip& trip) { row = openWithOwnEntry(trip); },
        [&row](BigTrip& trip) { stores(trip, row, QStringLiteral("Nuova")); }, nothing);
}

void addEntry(benchmark::State& state) {
    int row = 0;
    withGuide(
        state, openEditor, [&row](BigTrip& trip) { row = storeOwnEntry(trip); },
        [&row](BigTrip& trip) { deleteRow(trip, row); });
}

void deleteEntry(benchmark::State& state) {
    int row = 0;
    withGuide(
        state, [&row](BigTrip& trip) { row = openWithOwnEntry(trip); }, [&row](BigTrip& trip) { deleteRow(trip, row); },
        [&row](BigTrip& trip) { row = storeOwnEntry(trip); });
}

void prepareCalculation(benchmark::State& state) {
    withGuide(state, nothing, prepares, putsLegsBack);
}

void loadLegs(benchmark::State& state) {
    withGuide(
        state, nothing, [](BigTrip& trip) { comando(trip.form(), [&trip] { CaricaTappeItinerario(trip.form()); }); },
        nothing);
}

void storeLegs(benchmark::State& state) {
    withGuide(
        state, nothing, [](BigTrip& trip) { comando(trip.form(), [&trip] { MemorizzaTappeItinerario(trip.form()); }); },
        nothing);
}

void copyStops(benchmark::State& state) {
    withGuide(
        state, [](BigTrip& trip) { trip.form().cmdItinerario.click(); },
        [](BigTrip& trip) {
            trip.answer(rispostaSi);
            trip.form().cmdTrasferisce.click();
        },
        nothing);
}

#define GUIDE_BENCHMARK(name)                                                                                          \
    BENCHMARK(name)->Arg(2000)->Arg(20000)->Arg(200000)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(11)
GUIDE_BENCHMARK(openGuide);
GUIDE_BENCHMARK(closeGuide);
GUIDE_BENCHMARK(closeGuideAndSortGroups);
GUIDE_BENCHMARK(addEntry);
GUIDE_BENCHMARK(changeEntry);
GUIDE_BENCHMARK(deleteEntry);
GUIDE_BENCHMARK(prepareCalculation);
GUIDE_BENCHMARK(loadLegs);
GUIDE_BENCHMARK(storeLegs);
GUIDE_BENCHMARK(copyStops);

} // namespace vanzer::bench
