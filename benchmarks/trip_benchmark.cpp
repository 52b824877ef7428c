// What a long trip costs, beside the bare work that it can't do without. Both sides of a ratio are timed in one run.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <vector>

#include <QFile>
#include <QTemporaryDir>

#include "bare_archive.h"
#include "big_trip.h"
#include "core/place_name.h"
#include "guide/marks.h"
#include "itinerary/leg_table_screen.h"
#include "schedule/calculation_screen.h"
#include "schedule/preparation_screen.h"
#include "timing.h"
#include "window/command.h"

namespace vanzer::bench {

namespace {

double median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times.empty() ? 0 : times[times.size() / 2];
}

RigheDiLavoro prepared(BigTrip& trip) {
    RigheDiLavoro rows;
    comando(trip.form(), [&] { rows = PreparaTabellaPerCalcoloViandoria(trip.form()); });
    return rows;
}

QString copyOfArchive(BigTrip& trip, const QTemporaryDir& directory) {
    const QString copy = directory.filePath(QStringLiteral("copy.mdb"));
    QFile::remove(copy);
    QFile::copy(trip.archive(), copy);
    return copy;
}

int legs(const benchmark::State& state) {
    return static_cast<int>(state.range(0));
}

} // namespace

/// One test on prepared rows.
void oneSimulation(benchmark::State& state) {
    BigTrip trip(legs(state));
    const RigheDiLavoro rows = prepared(trip);
    const ParametriSimulazione p = parametriSimulazione(trip.form());
    std::size_t written = 0;
    for (auto _ : state)
        written = simula(rows.righe, p, 1).righe.size();
    state.counters["rows"] = static_cast<double>(written);
}
BENCHMARK(oneSimulation)->Arg(1000)->Arg(9999)->Unit(benchmark::kMillisecond);

/// The whole command with a search that uses up its tests, against as many bare tests and the bare read of the guide.
void wholeCalculation(benchmark::State& state) {
    BigTrip trip(legs(state));
    const QTemporaryDir directory;
    BareArchive bare(copyOfArchive(trip, directory));
    const RigheDiLavoro rows = prepared(trip);
    const ParametriSimulazione p = parametriSimulazione(trip.form());
    trip.form().cmdCalcola.setCaption(QStringLiteral("&Sblocca"));
    trip.form().cmdCalcola.setEnabled(true);
    trip.form().cmdCalcola.click();
    std::vector<double> whole;
    std::vector<double> tests;
    std::vector<double> guide;
    for (auto _ : state) {
        trip.wantTheImpossible();
        whole.push_back(seconds([&] { trip.form().cmdCalcola.click(); }));
        state.SetIterationTime(whole.back());
        if (trip.form().stato.NumeroTest != 21)
            state.SkipWithError("the search found an end");
        tests.push_back(seconds([&] {
            for (int i = 0; i < 21; ++i)
                benchmark::DoNotOptimize(simula(rows.righe, p, 1 + static_cast<float>(i) / 21).righe.size());
        }));
        guide.push_back(seconds([&] { benchmark::DoNotOptimize(bare.readGuide(legs(state))); }));
        trip.form().cmdCalcola.click();
    }
    state.counters["tests_ms"] = median(tests) * 1000;
    state.counters["guide_ms"] = median(guide) * 1000;
    state.counters["ratio"] = median(whole) / (median(tests) + median(guide));
}
BENCHMARK(wholeCalculation)->Arg(1000)->Arg(9999)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(11);

/// A piece of the window's work on a long trip, timed in turn with the same on the bare archive.
void besideBare(benchmark::State& state, const std::function<void(BigTrip&)>& work,
                const std::function<void(BareArchive&, int count)>& bareWork) {
    BigTrip trip(legs(state));
    const QTemporaryDir directory;
    BareArchive bare(copyOfArchive(trip, directory));
    std::vector<double> ours;
    std::vector<double> theirs;
    for (auto _ : state) {
        ours.push_back(seconds([&] { comando(trip.form(), [&] { work(trip); }); }));
        state.SetIterationTime(ours.back());
        theirs.push_back(seconds([&] { bareWork(bare, legs(state)); }));
    }
    state.counters["bare_ms"] = median(theirs) * 1000;
    state.counters["ratio"] = median(ours) / median(theirs);
}

/// Loading the legs with the guide of their places, against the same reads.
void load(benchmark::State& state) {
    besideBare(
        state, [](BigTrip& trip) { CaricaTappeItinerario(trip.form()); },
        [](BareArchive& bare, int count) {
            benchmark::DoNotOptimize(bare.readLegs());
            benchmark::DoNotOptimize(bare.readGuide(count));
        });
}
BENCHMARK(load)->Arg(1000)->Arg(9999)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(11);

/// The guide's entries of every place, against the same queries.
void readGuide(benchmark::State& state) {
    besideBare(
        state,
        [](BigTrip& trip) {
            SegniGuida guide(trip.form().archivio);
            for (int r = 1; r <= trip.legs(); ++r)
                benchmark::DoNotOptimize(guide.usaLuogo(PulisceNomeLocalita(trip.form().mfgTab.cell(r, 1))).size());
        },
        [](BareArchive& bare, int count) { benchmark::DoNotOptimize(bare.readGuide(count)); });
}
BENCHMARK(readGuide)->Arg(1000)->Arg(9999)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(11);

/// Storing the legs, against the same reads and writes in one transaction.
void save(benchmark::State& state) {
    besideBare(
        state, [](BigTrip& trip) { MemorizzaTappeItinerario(trip.form()); },
        [](BareArchive& bare, int count) {
            benchmark::DoNotOptimize(bare.readGuide(count));
            bare.rewriteLegs(count);
        });
}
BENCHMARK(save)->Arg(1000)->Arg(9999)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(11);

/// A leg typed at the end of the trip.
void typeALeg(benchmark::State& state) {
    BigTrip trip(legs(state));
    Form& form = trip.form();
    form.cmdItinerario.click();
    for (auto _ : state) {
        form.stato.RigaCorrente = legs(state);
        form.txtTappa.setText(QStringLiteral("ARRIVO"));
        form.txtKm.setText(QStringLiteral("12"));
        form.cmdInserisce.click();
    }
}
BENCHMARK(typeALeg)->Arg(100)->Arg(1000)->Arg(9999)->Unit(benchmark::kMillisecond);

/// The list of places in the editor, opened and closed.
void searchList(benchmark::State& state) {
    BigTrip trip(legs(state));
    Form& form = trip.form();
    form.cmdItinerario.click();
    for (auto _ : state) {
        form.cmdCerca.click();
        form.cmdFine.click();
    }
}
BENCHMARK(searchList)->Arg(1000)->Arg(9999)->Unit(benchmark::kMillisecond);

/// The guide of all the trip's places, opened and closed.
void guideOfTrip(benchmark::State& state) {
    BigTrip trip(legs(state));
    Form& form = trip.form();
    for (auto _ : state) {
        form.cmdGuidaCitta.click();
        form.cmdFineInserimento.click();
    }
}
BENCHMARK(guideOfTrip)->Arg(1000)->Arg(9999)->Unit(benchmark::kMillisecond);

} // namespace vanzer::bench
