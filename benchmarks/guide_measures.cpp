// SPDX-License-Identifier: MIT
// The cost of the guide's commands as the guide grows. Both sides have the same trip with the same entries. One guide
// has a hundred times as many entries of other places.

#include <functional>

#include <QTemporaryDir>

#include "big_trip.h"
#include "guide/entries.h"
#include "measure.h"
#include "trip/leg_table_screen.h"
#include "window/command.h"

namespace vanzer::bench {

namespace {

constexpr int fewLegs = 100;

using Step = std::function<void(BigTrip&)>;

/// A trip through places of the first entries, in a guide with so many entries.
class InGuide {
  public:
    explicit InGuide(int entries) {
        makeArchive(archive_.path(), {.destinations = 1, .legs = 10, .entries = entries});
        trip.emplace(fewLegs, archive_.path());
    }

  private:
    QTemporaryDir archive_;

  public:
    std::optional<BigTrip> trip;
};

/// Times `work`. Runs `before` once, and `after` to undo each change.
void withGuide(benchmark::State& state, const char* name, const Step& before, const Step& work, const Step& after) {
    InGuide small(2000);
    InGuide large(200'000);
    const auto side = [&](InGuide& guide) {
        before(*guide.trip);
        return [&] {
            const double taken = seconds([&] { work(*guide.trip); });
            after(*guide.trip);
            return taken;
        };
    };
    const Timed ours = side(large);
    const Timed theirs = side(small);
    measure(state, {.work = std::string(name) + ", guide of 200,000", .against = "guide of 2,000", .atMost = 1.3}, ours,
            theirs);
}

const QString own = QStringLiteral("Nuova");

void leaveAsItIs(BigTrip& /*trip*/) {}

void intoGuide(BigTrip& trip) {
    trip.form().cmdGuidaCitta.click();
}

void outOfGuide(BigTrip& trip) {
    trip.form().cmdFineInserimento.click();
}

/// The row of the last entry of that description. The editor must be open.
int rowOf(const Form& form, const QString& description) {
    int row = form.mfgTab.rows() - 1;
    while (row > 1 && form.mfgTab.cell(row, guidaDescrizione) != description)
        --row;
    return row;
}

void storesOwn(BigTrip& trip, int row) {
    Form& form = trip.form();
    form.mfgTab.clickRow(row);
    form.txtGGruppo.setText(QStringLiteral("Z"));
    form.txtGDescr.setText(own);
    form.cmbGH.setText(QStringLiteral("01"));
    form.cmbGM.setText(QStringLiteral("00"));
    form.cmdSalvaRiga.click();
}

/// Stores a new entry at the last place of the list. Returns its row.
int storeOwnEntry(BigTrip& trip) {
    Form& form = trip.form();
    int row = rowOf(form, QStringLiteral("Duomo"));
    while (form.mfgTab.cell(row, guidaSegno) == segnoVoce)
        --row;
    storesOwn(trip, row);
    return rowOf(form, own);
}

void deleteRow(BigTrip& trip, int row) {
    trip.form().mfgTab.clickRow(row);
    trip.answer(rispostaSi);
    trip.form().cmdCancellaRiga.click();
}

} // namespace

void openGuide(benchmark::State& state) {
    withGuide(state, "opening the guide", leaveAsItIs, intoGuide, outOfGuide);
}

/// Closes the guide, which sorts the marks of all the trip's groups.
void closeGuide(benchmark::State& state) {
    const auto unsort = [](BigTrip& trip) {
        comando(trip.form(), [&trip] {
            store::Database& archive = *trip.form().archivio.Db(0);
            archive.prepare("UPDATE GuidaCitta SET Gruppo = 'B-A' WHERE Gruppo = 'A-B'")->step();
        });
        intoGuide(trip);
    };
    withGuide(state, "closing the guide, groups put in order", intoGuide, outOfGuide, unsort);
}

void addEntry(benchmark::State& state) {
    withGuide(
        state, "adding an entry", intoGuide, [](BigTrip& trip) { storeOwnEntry(trip); },
        [](BigTrip& trip) { deleteRow(trip, rowOf(trip.form(), own)); });
}

void loadLegs(benchmark::State& state) {
    withGuide(
        state, "loading the legs", leaveAsItIs, [](BigTrip& trip) { trip.reload(); }, leaveAsItIs);
}

void storeLegs(benchmark::State& state) {
    withGuide(
        state, "storing the legs", leaveAsItIs,
        [](BigTrip& trip) { comando(trip.form(), [&trip] { MemorizzaTappeItinerario(trip.form()); }); }, leaveAsItIs);
}

#define GUIDE_MEASURE(name) BENCHMARK(name)->Iterations(1)->UseManualTime()
GUIDE_MEASURE(openGuide);
GUIDE_MEASURE(closeGuide);
GUIDE_MEASURE(addEntry);
GUIDE_MEASURE(loadLegs);
GUIDE_MEASURE(storeLegs);

} // namespace vanzer::bench
