// The table while a calculation runs: the rows so far, their pace, and nothing left of them behind the end.
#include <thread>

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QTemporaryDir>

#include "batch/queue_ports.h"
#include "batch/state_view.h"
#include "core/text.h"
#include "schedule/calculation_screen.h"
#include "schedule/growing_rows.h"
#include "schedule/preparation_screen.h"
#include "startup/startup.h"
#include "toolkit/program_starter.h"
#include "trip/leg_table_screen.h"
#include "trip/trip_numbers.h"
#include "window/command.h"

namespace vanzer {

namespace {

using namespace Qt::StringLiterals;
using Rows = TestiTabella;

/// A user who looks at every n-th row and does something at each yield.
class Onlooker : public EventYield {
  public:
    int every = 0; ///< 0: nobody looks
    std::function<void()> onYield;
    [[nodiscard]] bool due() const { return due_; }

    bool frameDue() override {
        due_ = every != 0 && ++asked_ % every == 0;
        if (due_)
            std::this_thread::sleep_for(std::chrono::milliseconds(4)); // the last showing is paid for, as a rule
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

/// What the rows take from the window while its legs are kept.
TestiViandoria texts(const Form& form) {
    const TestiTabella& legs = *form.tappeConservate;
    return {[&legs](int row, int column) -> const QString& { return legs.text(row - 1, column); }, form.cmbRipM.text(),
            form.viaggio->OreGuidaGiorno, form.viaggio->OreVisitaGiorno};
}

/// A stored trip of some days with breaks and long rests, in a window of its own.
class Trip {
  public:
    Trip() {
        clock_.set(QDateTime(QDate(2003, 6, 21), QTime(8, 30)));
        form_ = startWindow({.directory = directory_.path(), .decimalMark = u'.', .versione = {}}, ports_);
        form_->cmdNuovo.click();
        form_->txtLocalita.type(u"GRAN GIRO"_s);
        form_->txtNazione.type(u"EUROPA"_s);
        form_->cmbSoste.setText(u"3 Entrambe"_s);
        form_->cmbRipG.setText(u"1"_s);
        form_->cmbRipGG.setText(u"2"_s);
        boxes.enqueue(rispostaSi);
        form_->cmdSalva.click();
        comando(*form_, [this] { storeTrip(); });
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
    void storeTrip() {
        form_->archivio.StringaSQL = u"SELECT * FROM GuidaCitta"_s;
        form_->archivio.RecordSetImposta(0, store::GuidaCitta);
        store::Recordset& guide = form_->archivio.Rs(store::GuidaCitta);
        Grid& grid = form_->mfgTab;
        grid.setRows(legs + 2);
        for (int i = 1; i <= legs; ++i) {
            const QString place = u"Luogo "_s + Zero(i, 3);
            grid.setCell(i, 1, place + (i == 1 ? u" [Start]"_s : QString()));
            grid.setCell(i, 2, u"A1"_s);
            grid.setCell(i, 3, QString::number(80 + i));
            grid.setCell(i, 4, u"A"_s);
            grid.setCell(i, 7, i % 10 == 0 ? u"*00:00:30"_s : QString());
            guide.AddNew();
            guide.write("Localita", place);
            guide.write("CodiceGuida", u"01"_s);
            guide.write("Descrizione", u"Duomo"_s);
            guide.write("TempoSosta", u"00:30"_s);
            guide.write("FlagVisto", u"0"_s);
            guide.Update();
        }
        MemorizzaTappeItinerario(*form_);
        CaricaTappeItinerario(*form_);
    }

    static constexpr int legs = 40;
    QTemporaryDir directory_;
    batch::QueuedDialogs dialogs_;
    batch::SetClock clock_;
    DetachedStarter programs_;
    Ports ports_{boxes, dialogs_, clock_, events, programs_};
    std::unique_ptr<Form> form_;
};

/// What the table held at a showing, and where the calculation was.
struct Showing {
    int walked; ///< working rows that the test had walked
    float coefficient;
    ParametriSimulazione with;
    Rows rows;
    int topRow;
    bool enabled;
};

std::vector<Showing> showingsOfACalculation(Trip& trip) {
    Form& form = trip.form();
    std::vector<Showing> showings;
    const auto watch = QObject::connect(&form.mfgTab.model(), &QAbstractItemModel::modelReset, [&] {
        if (!trip.events.due())
            return;
        Rows rows;
        for (int r = 1; r < form.mfgTab.rows(); ++r) {
            const int row = rows.addRow();
            for (int c = 0; c < numeroColonneViandoria; ++c)
                rows.at(row, c) = form.mfgTab.cell(r, c);
        }
        showings.push_back({static_cast<int>(form.stato.PercentualeCorrente), form.viaggio->Coefficiente,
                            parametriSimulazione(form), rows, form.mfgTab.topRow(), form.mfgTab.enabled()});
    });
    form.cmdCalcola.click();
    QObject::disconnect(watch);
    return showings;
}

/// The first rows of a test, as they stand when it has walked so many working rows.
Rows firstRows(const Showing& at, const std::vector<RigaDiLavoro>& work, const TestiViandoria& with) {
    const Viandoria first = simulate(work, at.with, at.coefficient,
                                     [&at](int row, const Viandoria& /*soFar*/) { return row == at.walked + 1; });
    return celleViandoria(first, work, with);
}

} // namespace

TEST(RigheInCrescita, OfALongTestComeLittleByLittle) {
    const std::vector<RigaDiLavoro> work(1);
    Viandoria soFar;
    soFar.righe.resize(1000);
    const QString none;
    const TestiViandoria with{[&none](int, int) -> const QString& { return none; }, {}, 925, 1000};
    const Rows whole = celleViandoria(soFar, work, with);
    Rows rows;
    for (const int size : {400, 798, 1000, 1000}) {
        grow(rows, soFar, work, with);
        Rows first = whole;
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
    for (const auto* days : {u"000", u"200"}) {
        Trip alone;
        Trip trip;
        trip.events.every = 30;
        for (Trip* const t : {&alone, &trip})
            t->form().cmbGiorni.setText(QString::fromUtf16(days));
        alone.form().cmdCalcola.click();
        const std::vector<Showing> showings = showingsOfACalculation(trip);
        Form& form = trip.form();
        EXPECT_EQ(trip.table(), alone.table());
        EXPECT_EQ(form.viaggio->NumeroTest, alone.form().viaggio->NumeroTest);
        ASSERT_FALSE(showings.empty());
        form.cmdCalcola.click();
        RigheDiLavoro work;
        comando(form, [&] { work = *PreparaTabellaPerCalcoloViandoria(form); });
        const TestiViandoria with = texts(form);
        for (const Showing& at : showings) {
            ASSERT_EQ(at.rows, firstRows(at, work.righe, with)) << at.walked;
            EXPECT_EQ(at.topRow, at.rows.rows());
            EXPECT_FALSE(at.enabled) << "a click would edit the rows";
        }
    }
}

TEST(RigheInCrescita, AnInterruptionLeavesTheLegs) {
    for (const bool fromEditor : {false, true}) {
        std::array<std::string, 2> left;
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
                if (form.stato.PercentualeCorrente < 30 || uguale(form.cmdEsce.caption(), u"&Esce") ||
                    form.stato.InterrompiCalcolo || form.viaggio->NumeroTest == 0)
                    return;
                seen = form.mfgTab.rows() > 20;
                trip.boxes.enqueue(rispostaSi);
                form.cmdEsce.click();
            };
            (fromEditor ? form.cmdRicalcola : form.cmdCalcola).click();
            EXPECT_TRUE(form.stato.InterrompiCalcolo);
            EXPECT_EQ(seen, looked);
            EXPECT_FALSE(form.tappeConservate.has_value());
            EXPECT_EQ(form.mfgTab.cell(40, 1), u"Luogo 040"_s);
            left.at(looked ? 1 : 0) = trip.table();
        }
        EXPECT_EQ(left[0], left[1]) << (fromEditor ? "editor" : "menu");
    }
}

} // namespace vanzer
