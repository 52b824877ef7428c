// SPDX-License-Identifier: MIT
// The cost of a long trip, compared with the least work that it needs.

#include <QFile>

#include "bare_archive.h"
#include "big_trip.h"
#include "measure.h"
#include "schedule/calculation_screen.h"
#include "schedule/preparation_screen.h"
#include "trip/leg_table_screen.h"
#include "trip/trip_numbers.h"
#include "window/command.h"

namespace vanzer::bench {

namespace {

constexpr int mostLegs = 9999; // the most legs of a trip
constexpr int tests = 21;      // the tests of a search that finds no solution

/// A long trip, and a copy of its archive for plain engine calls.
class Both {
  public:
    Both() : trip(mostLegs) {
        QFile::copy(trip.file("Vanzer.mdb"), trip.file("bare.mdb"));
        places = trip.places();
        code = trip.form().stato.CodiceMeta.toStdString();
        bare.emplace(trip.file("bare.mdb"));
        rows = bare->legs(code);
    }

    BigTrip trip;
    std::vector<QString> places;
    std::string code;
    std::optional<BareArchive> bare;
    BareRows rows;
};

Timed inCommand(Form& form, std::function<void(Form&)> work) {
    return timed([&form, work = std::move(work)] { comando(form, [&] { work(form); }); });
}

} // namespace

void load(benchmark::State& state) {
    Both both;
    measure(
        state,
        {.work = "load 9,999 legs with what the guide knows of them", .against = "the same by bare calls", .atMost = 1},
        inCommand(both.trip.form(), CaricaTappeItinerario), timed([&both] {
            benchmark::DoNotOptimize(both.bare->readLegs(both.code));
            benchmark::DoNotOptimize(both.bare->readGuide(both.places));
        }));
}
BENCHMARK(load)->Iterations(1)->UseManualTime();

void store(benchmark::State& state) {
    Both both;
    measure(state, {.work = "store 9,999 legs", .against = "the same by bare calls", .atMost = 1},
            inCommand(both.trip.form(), [](Form& form) { MemorizzaTappeItinerario(form); }), timed([&both] {
                benchmark::DoNotOptimize(both.bare->readGuide(both.places));
                both.bare->rewriteLegs(both.code, both.rows);
            }));
}
BENCHMARK(store)->Iterations(1)->UseManualTime();

void calculation(benchmark::State& state) {
    Both both;
    Form& form = both.trip.form();
    RigheDiLavoro rows;
    comando(form, [&] { rows = *PreparaTabellaPerCalcoloViandoria(form); });
    ParametriSimulazione with = parametriSimulazione(form);
    with.giorniDesiderati = 0;
    both.trip.reload();
    const auto ours = [&] {
        both.trip.wantTheImpossible();
        const double taken = seconds([&form] { form.cmdCalcola.click(); });
        if (form.viaggio->NumeroTest != tests)
            state.SkipWithError("the search found an end");
        form.cmdCalcola.click(); // shows the legs again
        return taken;
    };
    Viandoria schedule;
    measure(state,
            {.work = "`cmdCalcola`, 9,999 legs, 21 tests",
             .against = "21 bare tests and the bare read of the guide",
             .atMost = 1},
            ours, timed([&] {
                for (int i = 0; i < tests; ++i)
                    schedule =
                        simulate(rows.righe, with, 1 + static_cast<float>(i) / tests, {}, std::move(schedule.righe));
                benchmark::DoNotOptimize(both.bare->readGuide(both.places));
            }));
}
BENCHMARK(calculation)->Iterations(1)->UseManualTime();

} // namespace vanzer::bench
