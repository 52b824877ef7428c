// Running kilometres and times of a table whose legs are typed, moved and taken away: by difference they are what they
// would be if all were worked out each time.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include <QTemporaryDir>

#include "batch/session.h"
#include "core/text.h"
#include "trip/totals_screen.h"

namespace vanzer {

using namespace Qt::StringLiterals;

namespace {

class Anyone {
  public:
    explicit Anyone(unsigned seed) : chance_(seed) {
        program_.clock.set(QDateTime(QDate(2026, 5, 4), QTime(9, 30)));
        program_.start();
        form().cmdNuovo.click();
        form().txtLocalita.setText(u"GARDA"_s);
        form().txtNazione.setText(u"ITALIA"_s);
        program_.boxes.enqueue(rispostaSi);
        form().cmdSalva.click();
        form().cmdItinerario.click();
    }

    [[nodiscard]] Form& form() { return *program_.window(); }

    void work() {
        const int rows = form().stato.NumeroTappe;
        switch (below(12)) {
        case 0: form().cmdAggiunge.click(); break;
        case 1: rows > 3 ? form().cmdCancella.click() : type(); break;
        case 2: form().cmbMediaKm(below(4)).setText(QString::number(30 + 10 * below(5))); break;
        case 3: form().mfgTab.clickRow(1 + below(rows + 2)); break;
        case 4: form().mfgTab.clickRow(Maggiore(rows, 1)); break;
        case 5: below(6) == 0 ? form().cmdRitorno.click() : type(); break;
        default: type();
        }
    }

    /// The table row by row, then the totals.
    [[nodiscard]] QStringList table() {
        QStringList all;
        for (int r = 1; r < form().mfgTab.rows(); ++r) {
            QString row;
            for (int c = 0; c < form().mfgTab.columns(); ++c)
                row += form().mfgTab.cell(r, c) + u'|';
            all += row;
        }
        for (int i = 0; i < 5; ++i)
            all += form().txtKmTot(i).text() + u' ' + form().txtTempo(i).text();
        return all + QStringList{form().txtTragh.text(), form().cmbGiorni.text()};
    }

  private:
    int below(int bound) { return static_cast<int>(chance_() % static_cast<unsigned>(bound)); }

    void type() {
        Form& f = form();
        f.txtTappa.setText(u"Luogo %1"_s.arg(below(30)));
        f.txtNumStrada.setText(below(8) == 0 ? u"TRAGHETTO"_s : u"SS%1"_s.arg(below(50)));
        // A leg without kilometres needs a stop.
        f.txtKm.setText(below(5) == 0 ? QString() : QString::number(1 + below(900)));
        f.cmbSosta(1).setText(u"01"_s);
        f.optStrada(below(4)).choose();
        f.chkMeta(0).setValue(below(15) == 0);
        f.chkKm.setValue(false);
        f.cmdInserisce.click();
    }

    std::mt19937 chance_;
    QTemporaryDir folder_;
    batch::Session program_{{.directory = folder_.path(), .decimalMark = u'.', .versione = {}}};
};

/// The first difference.
std::string difference(const QStringList& a, const QStringList& b) {
    if (a.size() != b.size())
        return "other rows";
    const auto [inA, inB] = std::ranges::mismatch(a, b);
    return inA == a.end() ? std::string() : (*inA + u" instead of "_s + *inB).toStdString();
}

using Leg = std::optional<Tratto>;

} // namespace

TEST(RunningTotals, AreTheSameHoweverTheyCome) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        Anyone typed(seed);
        Anyone anew(seed);
        for (int i = 0; i < 120; ++i) {
            typed.work();
            anew.form().mfgTab.setContents(anew.form().mfgTab.takeContents()); // another table for all that is known
            anew.work();
        }
        ASSERT_GT(typed.form().stato.NumeroTappe, 5);
        EXPECT_EQ(difference(typed.table(), anew.table()), "") << "seed " << seed;
    }
}

TEST(RunningTotals, ByDifferenceOnlyWhereNothingIsLost) {
    constexpr Medie speeds{80, 65, 50, 30};
    const struct {
        const char* what;
        Leg changed;
        bool byDifference;
    } cases[] = {{"another length", Tratto{70, 1, false}, true},
                 {"a ferry", Tratto{0, 0, true}, true},
                 {"no leg any more", {}, true},
                 {"negative", Tratto{-5, 0, false}, false},
                 {"more than single precision counts", Tratto{17'000'000, 0, false}, false}};
    for (const auto& c : cases) {
        const TotaliTabella::Righe rows{{}, Tratto{100, 0, false}, Tratto{50, 3, true}, Tratto{3, 2, false}};
        TotaliTabella totals;
        totals.recalculate(rows, speeds);
        EXPECT_EQ(totals.change(2, c.changed), c.byDifference) << c.what;
        TotaliTabella::Righe expectedRows = rows;
        if (c.byDifference)
            expectedRows[2] = c.changed;
        TotaliTabella expected;
        expected.recalculate(expectedRows, speeds);
        EXPECT_EQ(totals.totali().km, expected.totali().km) << c.what;
        EXPECT_EQ(totals.totali().tempo, expected.totali().tempo) << c.what;
        EXPECT_EQ(totals.totali().traghetti, expected.totali().traghetti) << c.what;
    }
}

} // namespace vanzer
