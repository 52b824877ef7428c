// SPDX-License-Identifier: MIT
// The table during a calculation: the rows so far, their pace, and nothing left afterwards.
#include <thread>

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QTemporaryDir>

#include "batch/state_view.h"
#include "schedule/calculation_screen.h"
#include "schedule/growing_rows.h"
#include "schedule/preparation_screen.h"
#include "startup/startup.h"
#include "support/desk.h"
#include "toolkit/program_starter.h"
#include "trip/trip_numbers.h"
#include "window/command.h"

namespace vanzer {

namespace {

using namespace Qt::StringLiterals;

/// Shows every n-th row, and calls `onYield` at each yield.
class Onlooker : public EventYield {
  public:
    int every = 0; ///< 0: shows nothing
    std::function<void()> onYield;
    [[nodiscard]] bool due() const { return due_; }

    bool frameDue() override {
        due_ = every != 0 && ++asked_ % every == 0;
        if (due_)
            std::this_thread::sleep_for(std::chrono::milliseconds(4)); // mostly longer than the pause between showings
        return due_;
    }
    void yield() override {
        due_ = false;
        if (onYield)
            onYield();
    }

  private:
    int asked_ = 0;
    bool due_ = false;
};

/// The texts that the rows take from the window while its legs are kept.
TestiViandoria texts(const Form& form) {
    const TestiTabella& legs = *form.tappeConservate;
    return {[&legs](int row, int column) -> const QString& { return legs.text(row - 1, column); }, form.cmbRipM.text(),
            form.viaggio->OreGuidaGiorno, form.viaggio->OreVisitaGiorno};
}

/// A stored trip of some days in its own window. It has breaks, long rests and a guide entry for each leg.
class Trip {
  public:
    Trip() {
        storeTrip();
        form_ = startWindow({.directory = directory_.path(), .decimalMark = u'.', .versione = {}}, ports_);
        form_->cmdRicerca.click();
        form_->cmbRicerca.pick(u"GIRO"_s);
        form_->cmbRipG.setText(u"1"_s);
        form_->cmbRipGG.setText(u"2"_s);
    }

    [[nodiscard]] Form& form() { return *form_; }
    [[nodiscard]] std::string table() const {
        QJsonObject state = batch::gridState(form_->mfgTab);
        state[u"enabled"_s] = form_->mfgTab.enabled();
        return QJsonDocument(state).toJson().toStdString();
    }

    batch::QueuedBoxes boxes;
    Onlooker events;

  private:
    void storeTrip() const {
        constexpr int legs = 40;
        Desk desk(directory_.path());
        desk.run(QStringList(u"start"_s) + storedTrip(u"GIRO"_s, legs));
        store::Recordset guide(*desk.program().window()->archivio.Db(0),
                               {store::TabelleNomi(store::GuidaCitta), {}, {}});
        for (int i = 0; i < legs; ++i) {
            guide.AddNew();
            guide.write("Localita", u"Giro %1"_s.arg(i));
            guide.write("CodiceGuida", u"01"_s);
            guide.write("TempoSosta", u"00:30"_s);
            guide.write("FlagVisto", u"0"_s);
            guide.Update();
        }
    }

    QTemporaryDir directory_;
    batch::QueuedDialogs dialogs_;
    batch::SetClock clock_;
    DetachedStarter programs_;
    Ports ports_{boxes, dialogs_, clock_, events, programs_};
    std::unique_ptr<Form> form_;
};

TestiTabella rowsOf(const Grid& grid) {
    TestiTabella rows;
    for (int r = 1; r < grid.rows(); ++r) {
        const int row = rows.addRow();
        for (int c = 0; c < numeroColonneViandoria; ++c)
            rows.at(row, c) = grid.cell(r, c);
    }
    return rows;
}

} // namespace

TEST(RigheInCrescita, OfALongTestComeLittleByLittle) {
    const std::vector<RigaDiLavoro> work(1);
    Viandoria soFar;
    soFar.righe.resize(1000);
    const QString none;
    const TestiViandoria with{[&none](int, int) -> const QString& { return none; }, {}, 925, 1000};
    const TestiTabella whole = celleViandoria(soFar, work, with);
    TestiTabella rows;
    for (const int size : {400, 798, 1000, 1000}) {
        grow(rows, soFar, work, with);
        TestiTabella first = whole;
        first.setRows(size);
        EXPECT_EQ(rows, first) << size;
    }
}

TEST(RigheInCrescita, AreShownForATwentiethOfTheTime) {
    using std::chrono::milliseconds;
    const RitmoMostre::Istante start{milliseconds(1000)};
    RitmoMostre rhythm;
    EXPECT_TRUE(rhythm.isDue(start));
    rhythm.shown(start, start + milliseconds(10));
    EXPECT_FALSE(rhythm.isDue(start + milliseconds(209)));
    EXPECT_TRUE(rhythm.isDue(start + milliseconds(210)));
    rhythm.shown(start + milliseconds(300), start + milliseconds(301));
    EXPECT_TRUE(rhythm.isDue(start + milliseconds(321))) << "only the last one counts";
}

TEST(RigheInCrescita, StandInTheTableWhileTheirTestRuns) {
    for (const QString& days : {u"000"_s, u"200"_s}) {
        Trip alone;
        Trip trip;
        Form& form = trip.form();
        for (Form* const one : {&alone.form(), &form})
            one->cmbGiorni.setText(days);
        alone.form().cmdCalcola.click();
        const std::string whole = alone.table();
        alone.form().cmdCalcola.click();
        RigheDiLavoro work;
        comando(alone.form(), [&] { work = *PreparaTabellaPerCalcoloViandoria(alone.form()); });
        trip.events.every = 30;
        int showings = 0;
        QObject::connect(&form.mfgTab.model(), &QAbstractItemModel::modelReset, [&] {
            if (!trip.events.due())
                return;
            ++showings;
            const auto walked = static_cast<int>(form.stato.PercentualeCorrente);
            const Viandoria first = simulate(work.righe, parametriSimulazione(form), form.viaggio->Coefficiente,
                                             [walked](int row, const Viandoria&) { return row == walked + 1; });
            EXPECT_EQ(rowsOf(form.mfgTab), celleViandoria(first, work.righe, texts(form))) << walked;
            EXPECT_EQ(form.mfgTab.topRow(), form.mfgTab.rows() - 1);
            EXPECT_FALSE(form.mfgTab.enabled()) << "a click would edit the rows";
        });
        form.cmdCalcola.click();
        EXPECT_EQ(trip.table(), whole);
        EXPECT_EQ(form.viaggio->NumeroTest, alone.form().viaggio->NumeroTest);
        EXPECT_GT(showings, 0);
    }
}

TEST(RigheInCrescita, AnInterruptionLeavesTheLegs) {
    for (const bool fromEditor : {false, true}) {
        std::string left[2];
        for (const bool looked : {false, true}) {
            Trip trip;
            Form& form = trip.form();
            if (fromEditor) {
                form.cmdItinerario.click();
                form.mfgTab.clickRow(30);
            }
            trip.events.every = looked ? 20 : 0;
            bool seen = false;
            trip.events.onYield = [&] {
                if (form.stato.PercentualeCorrente < 30 || form.cmdEsce.caption() != u"&Stop" ||
                    form.stato.InterrompiCalcolo || form.viaggio->NumeroTest == 0)
                    return;
                seen = form.mfgTab.rows() > 20;
                trip.boxes.enqueue(rispostaSi);
                form.cmdEsce.click();
            };
            (fromEditor ? form.cmdRicalcola : form.cmdCalcola).click();
            EXPECT_TRUE(form.stato.InterrompiCalcolo && !form.tappeConservate);
            EXPECT_EQ(seen, looked);
            EXPECT_EQ(form.mfgTab.cell(40, 1), u"GIRO 39"_s);
            left[looked ? 1 : 0] = trip.table();
        }
        EXPECT_EQ(left[0], left[1]) << (fromEditor ? "editor" : "menu");
    }
}

} // namespace vanzer
