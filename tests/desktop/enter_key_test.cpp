// Enter in the editors: what was typed is taken, and only then the editor is left.
#include <QFile>

#include "desktop_fixture.h"

namespace vanzer::desktop {
namespace {

class EnterKey : public DesktopTest {
  protected:
    struct Case {
        const char* what;
        int row;
        const char* focus;
        std::function<void(Form&)> change;
        bool taken;
    };

    /// All that the guide holds.
    [[nodiscard]] std::string entries() {
        QString list;
        for (const auto& record : form().archivio.tabella(QStringLiteral("GuidaCitta")).record) {
            for (const auto& cell : record)
                list += std::holds_alternative<QString>(cell) ? std::get<QString>(cell) + u'|' : QString();
        }
        return list.toStdString();
    }

    /// The change to the row that is shown, and Enter.
    void enterAfter(const Case& c) {
        form().mfgTab.clickRow(c.row);
        c.change(form());
        window().binder().flush();
        find(c.focus)->setFocus();
        boxes.forget();
        key(Qt::Key_Return);
    }
};

void nothing(Form& /*form*/) {}

TEST_F(EnterKey, TakesATypedLegElseAsksToLeave) {
    storeTrip(3);
    const Case cases[] = {
        {"a leg as it is", 2, "txtTappa", nothing, false},
        {"the same place again", 2, "txtTappa", [](Form& f) { f.txtTappa.type(QStringLiteral("LUOGO 2")); }, false},
        {"a place", 2, "txtTappa", [](Form& f) { f.txtTappa.type(QStringLiteral("ALTROVE")); }, true},
        {"kilometres", 2, "txtKm", [](Form& f) { f.txtKm.type(QStringLiteral("80")); }, true},
        {"a road", 2, "txtNumStrada", [](Form& f) { f.txtNumStrada.type(QStringLiteral("A1")); }, true},
        {"a road type", 2, "optStrada_2", [](Form& f) { f.optStrada(2).choose(); }, true},
        {"an end of the day", 2, "chkEndDay", [](Form& f) { f.chkEndDay.choose(true); }, true},
        {"a mark", 2, "chkMeta_1", [](Form& f) { f.chkMeta(1).choose(true); }, true},
        {"the hours of a stop", 2, "cmbSosta_1", [](Form& f) { f.cmbSosta(1).pick(QStringLiteral("02")); }, true},
        {"a leg with a stop as it is", 3, "cmbSosta_1", nothing, false},
        {"a stop taken away", 3, "cmbSosta_1", [](Form& f) { f.cmbSosta(1).pick(QStringLiteral("00")); }, true},
        {"a new row", 4, "txtTappa", nothing, false},
        {"a new row's road type", 4, "optStrada_2", [](Form& f) { f.optStrada(2).choose(); }, false},
        {"a new place", 4, "txtKm",
         [](Form& f) {
             f.txtTappa.type(QStringLiteral("ALTROVE"));
             f.txtKm.type(QStringLiteral("5"));
         },
         true},
        {"a new place, the focus in the table", 4, "mfgTab",
         [](Form& f) { f.txtTappa.type(QStringLiteral("ALTROVE")); }, false},
    };
    for (const Case& c : cases) {
        open();
        letter('i');
        form().mfgTab.setCell(3, 2, QStringLiteral("SS9")); // is carried over into a new row
        enterAfter(c);
        EXPECT_EQ(form().stato.RigaCorrente, c.taken ? c.row + 1 : c.row) << c.what;
        ASSERT_EQ(boxes.shown().size(), c.taken ? 0U : 1U) << c.what;
        EXPECT_TRUE(isSeen("frmframe_12")) << c.what;
        if (c.taken && c.row == 4)
            key(Qt::Key_Return);
        EXPECT_EQ(boxes.shown().size(), c.taken && c.row < 4 ? 0U : 1U) << c.what << ": a new row is as it is";
    }
}

TEST_F(EnterKey, TakesATypedEntryElseLeavesTheGuide) {
    const auto describe = [](Form& f) { f.txtGDescr.type(QStringLiteral("zzz")); };
    const auto group = [](Form& f) { f.txtGGruppo.type(QStringLiteral("A")); };
    const auto hours = [](Form& f) { f.cmbGH.setText(QStringLiteral("03")); };
    const auto category = [](Form& f) { f.cmbGTipo.pick(QStringLiteral("Gpl")); };
    const Case cases[] = {
        {"a place as it is", 1, "txtGDescr", nothing, false},
        {"a place with a group", 1, "txtGGruppo", group, false},
        {"a place with a time", 1, "cmbGH", hours, false},
        {"a place with a category", 1, "cmbGTipo", category, false},
        {"a description", 1, "txtGDescr", describe, true},
        {"what was searched for", 1, "txtGDescr",
         [](Form& f) {
             f.txtGDescr.type(QStringLiteral("2"));
             f.cmdFind.click();
         },
         false},
        {"an entry as it is", 2, "txtGDescr", nothing, false},
        {"an entry's description in small letters", 2, "txtGDescr",
         [](Form& f) { f.txtGDescr.type(QStringLiteral("museo")); }, false},
        {"an entry's description", 2, "txtGDescr", describe, true},
        {"an entry's group", 2, "txtGGruppo", group, true},
        {"an entry's time", 2, "cmbGH", hours, true},
        {"an entry's category", 2, "cmbGTipo", category, true},
    };
    for (const Case& c : cases) {
        forgetArchive();
        storeTrip(2);
        open();
        letter('g');
        for (const char* const name : {"museo", "zoo"}) {
            form().mfgTab.clickRow(1);
            form().txtGDescr.type(QLatin1StringView(name));
            form().txtGGruppo.type(QStringLiteral("B"));
            form().cmbGH.setText(QStringLiteral("01"));
            form().cmdSalvaRiga.click();
        }
        const std::string before = entries();
        enterAfter(c);
        const std::string after = entries();
        EXPECT_EQ(isSeen("frmframe_24"), c.taken) << c.what;
        EXPECT_EQ(after != before, c.taken) << c.what << ": " << after;
        EXPECT_TRUE(boxes.shown().empty()) << c.what;
        if (c.taken)
            key(Qt::Key_Return);
        EXPECT_FALSE(isSeen("frmframe_24")) << c.what;
        EXPECT_EQ(entries(), after) << c.what << ": once more only leaves";
    }
}

} // namespace
} // namespace vanzer::desktop
