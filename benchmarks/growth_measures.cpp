// SPDX-License-Identifier: MIT
// The slow commands on a trip of 9,999 legs, compared with a trip of 1,000 legs. The time should grow as the legs do.
// The quick commands are compared with a frame of the screen.

#include <array>

#include <QFile>

#include "big_trip.h"
#include "measure.h"
#include "paper.h"
#include "places.h"
#include "trip/leg_table_screen.h"
#include "window/command.h"

namespace vanzer::bench {

namespace {

constexpr int few = 1000;
constexpr int many = 9999;

struct Command {
    const char* name;
    void (*prepare)(BigTrip&);
    double (*work)(BigTrip&); ///< returns seconds; leaves the trip unchanged
};

void nothing(BigTrip& /*trip*/) {}

void openEditor(BigTrip& trip) {
    trip.form().cmdItinerario.click();
}

double clicked(Button& button) {
    return seconds([&button] { button.click(); });
}

/// Clicks a button that changes the legs, then restores them.
double clickedAndUndone(BigTrip& trip, Button& button) {
    const double taken = clicked(button);
    trip.reload();
    return taken;
}

double loadsLegs(BigTrip& trip) {
    return seconds([&trip] { trip.reload(); });
}

double storesLegs(BigTrip& trip) {
    trip.answer(rispostaSi);
    return clicked(trip.form().cmdMemorizza);
}

double calculates(BigTrip& trip) {
    const double taken = clicked(trip.form().cmdCalcola);
    trip.form().cmdCalcola.click();
    return taken;
}

double searches(BigTrip& trip) {
    trip.wantTheImpossible();
    return calculates(trip);
}

double listsLegs(BigTrip& trip) {
    const double taken = clicked(trip.form().cmdCerca);
    trip.form().cmdFine.click();
    return taken;
}

double copiesStops(BigTrip& trip) {
    trip.answer(rispostaSi);
    return clickedAndUndone(trip, trip.form().cmdTrasferisce);
}

double opensGuide(BigTrip& trip) {
    const double taken = clicked(trip.form().cmdGuidaCitta);
    trip.form().cmdFineInserimento.click();
    return taken;
}

double closesGuide(BigTrip& trip) {
    trip.form().cmdGuidaCitta.click();
    return clicked(trip.form().cmdFineInserimento);
}

double prints(BigTrip& trip) {
    const double taken = printsSchedule(trip);
    trip.form().cmdEsegui(1).click();
    if (trip.form().cmdCalcola.caption() != u"&Calcola")
        trip.form().cmdCalcola.click();
    return taken;
}

constexpr std::array commands{
    Command{"loading the legs", nothing, loadsLegs},
    Command{"`cmdCalcola`", nothing, calculates},
    Command{"`cmdCalcola` with 21 tests", nothing, searches},
    Command{"`cmdMemorizza`", openEditor, storesLegs},
    Command{"`cmdCerca`", openEditor, listsLegs},
    Command{"`cmdTrasferisce`", openEditor, copiesStops},
    Command{"`cmdGuidaCitta`", nothing, opensGuide},
    Command{"`cmdFineInserimento`", nothing, closesGuide},
    Command{"printing the schedule", nothing, prints},
};

double insertsRow(BigTrip& trip) {
    trip.form().mfgTab.clickRow(5);
    const double taken = clicked(trip.form().cmdAggiunge);
    trip.form().cmdCancella.click();
    return taken;
}

double deletesRow(BigTrip& trip) {
    trip.form().mfgTab.clickRow(5);
    trip.form().cmdAggiunge.click();
    return clicked(trip.form().cmdCancella);
}

double drivesBack(BigTrip& trip) {
    Form& form = trip.form();
    form.mfgTab.clickRow(trip.legs() + 1);
    form.txtTappa.setText(form.mfgTab.cell(2, 1));
    form.txtKm.setText(QStringLiteral("12"));
    form.cmdInserisce.click();
    return clickedAndUndone(trip, form.cmdRitorno);
}

double clearsStops(BigTrip& trip) {
    trip.answer(rispostaSi);
    return clickedAndUndone(trip, trip.form().cmdAzzeraSoste);
}

/// Makes all legs but the first and the last motorway.
double changesStretch(BigTrip& trip) {
    Form& form = trip.form();
    form.cmdModStrada.click();
    const double taken = seconds([&] {
        form.mfgTab.clickRow(2);
        form.cmdTappaSEl(0).click();
        form.mfgTab.clickRow(trip.legs() - 1);
        form.cmdTappaSEl(1).click();
        form.optTStrada(0).choose();
        form.cmdTappaSEl(2).click();
    });
    trip.answer(rispostaNo);
    form.cmdTappaSEl(3).click();
    return taken;
}

/// Reads a planner's list of so many rows into an empty itinerary and reduces it to its stops.
class Planner {
  public:
    explicit Planner(int rows) : trip_(0), rows_(rows) {
        put("lista.txt", routeList(rows));
        put("soste.csv", stops(rows));
        trip_.form().cmdItinerario.click();
    }

    double imports() {
        trip_.reload();
        trip_.choose(trip_.file("lista.txt"));
        const double taken = clicked(trip_.form().cmdMapPoint);
        if (trip_.form().stato.NumeroTappe < rows_ / 2)
            throw std::runtime_error("the list did not come in");
        return taken;
    }

    double filters() {
        imports();
        trip_.choose(trip_.file("soste.csv"));
        return clicked(trip_.form().cmdSelezionaMete);
    }

  private:
    static QByteArray stops(int rows) {
        QByteArray text = "lon,lat,nome\n";
        for (int i = 5; i < rows; i += 10)
            text += "8.12345,45.12345,\"" + allPlaces()[static_cast<std::size_t>(i) * 5].name.toUtf8() + "\"\n";
        return text;
    }

    void put(const char* name, const QByteArray& contents) {
        QFile file(trip_.file(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(contents);
    }

    BigTrip trip_;
    int rows_;
};

Beside growth(const std::string& name) {
    return {.work = name + ", 9,999 legs", .against = "1,000 legs", .atMost = 13};
}

void grows(benchmark::State& state, const Command& command) {
    BigTrip small(few);
    BigTrip large(many);
    command.prepare(small);
    command.prepare(large);
    measure(
        state, growth(command.name), [&] { return command.work(large); }, [&] { return command.work(small); });
}

void plannerGrows(benchmark::State& state, const char* name, double (Planner::*work)()) {
    Planner small(few);
    Planner large(many);
    measure(
        state, growth(name), [&] { return (large.*work)(); }, [&] { return (small.*work)(); });
}

/// Commands that take a moment on any trip, even the longest.
void quickCommands(benchmark::State& state) {
    BigTrip trip(many);
    measure(
        state,
        {.work = "a row added, one deleted, the way home, stops cleared, a stretch changed, 9,999 legs",
         .against = "a frame of the screen",
         .atMost = 1},
        [&trip] {
            openEditor(trip);
            const double taken = insertsRow(trip) + deletesRow(trip) + drivesBack(trip) + clearsStops(trip);
            trip.answer(rispostaNo);
            trip.form().cmdFine.click();
            return taken + changesStretch(trip);
        },
        screenFrame());
}
BENCHMARK(quickCommands)->Iterations(1)->UseManualTime();

[[maybe_unused]] const bool growthRegistered = [] {
    for (std::size_t i = 0; i < commands.size(); ++i) {
        const Command& command = commands[i];
        benchmark::RegisterBenchmark(("growth" + std::to_string(i + 1)).c_str(), grows, command)
            ->Iterations(1)
            ->UseManualTime();
    }
    benchmark::RegisterBenchmark("growthOfImport", plannerGrows, "`cmdMapPoint`", &Planner::imports)
        ->Iterations(1)
        ->UseManualTime();
    benchmark::RegisterBenchmark("growthOfFilter", plannerGrows, "`cmdSelezionaMete`", &Planner::filters)
        ->Iterations(1)
        ->UseManualTime();
    return true;
}();

} // namespace

} // namespace vanzer::bench
