// SPDX-License-Identifier: MIT
// Enter in the editors: it first takes what was typed, and then leaves the editor.
#include "desktop_fixture.h"

namespace vanzer::desktop {
namespace {

class EnterKey : public DesktopTest {
  protected:
    struct Case {
        int row;
        const char* focus;
        const char* change; ///< changes to the shown row, as commands for `work`
        bool taken;
    };

    void enterAfter(const Case& c) {
        form().mfgTab.clickRow(c.row);
        work(c.change);
        find(c.focus)->setFocus();
        boxes.forget();
        press("<Return>");
    }
};

TEST_F(EnterKey, TakesATypedLegElseAsksToLeave) {
    storeTrip(3);
    const Case cases[] = {
        {2, "txtTappa", "", false},
        {2, "txtTappa", "set txtTappa LUOGO 2", false},
        {2, "txtTappa", "set txtTappa ALTROVE", true},
        {2, "txtKm", "set txtKm 80", true},
        {2, "txtNumStrada", "set txtNumStrada A1", true},
        {2, "optStrada_2", "option optStrada(2)", true},
        {2, "chkEndDay", "check chkEndDay 1", true},
        {2, "chkMeta_1", "check chkMeta(1) 1", true},
        {2, "cmbSosta_1", "pick cmbSosta(1) 02", true},
        {3, "cmbSosta_1", "", false},
        {3, "cmbSosta_1", "pick cmbSosta(1) 00", true},
        {4, "txtTappa", "", false},
        {4, "optStrada_2", "option optStrada(2)", false}, // a new row without text
        {4, "txtKm", "set txtTappa ALTROVE;set txtKm 5", true},
        {4, "mfgTab", "set txtTappa ALTROVE", false}, // the focus isn't in the editor
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.change) + ", " + c.focus);
        open();
        press("<i>");
        form().mfgTab.setCell(3, 2, QStringLiteral("SS9")); // this road is carried over into a new row
        enterAfter(c);
        EXPECT_EQ(form().stato.RigaCorrente, c.taken ? c.row + 1 : c.row);
        EXPECT_EQ(boxes.none(), c.taken);
        sees("+frmframe_12");
        if (c.taken && c.row == 4)
            press("<Return>");
        EXPECT_EQ(boxes.none(), c.taken && c.row < 4) << "a new row is as it is";
    }
}

TEST_F(EnterKey, TakesATypedEntryElseLeavesTheGuide) {
    const Case cases[] = {
        {1, "txtGDescr", "", false}, // a place
        {1, "txtGGruppo", "set txtGGruppo A", false},
        {1, "cmbGH", "set cmbGH 03", false},
        {1, "cmbGTipo", "pick cmbGTipo Gpl", false},
        {1, "txtGDescr", "set txtGDescr zzz", true},
        {1, "txtGDescr", "set txtGDescr 2;click cmdFind", false}, // the text of a search
        {2, "txtGDescr", "", false},                              // an entry
        {2, "txtGDescr", "set txtGDescr museo", false},
        {2, "txtGDescr", "set txtGDescr zzz", true},
        {2, "txtGGruppo", "set txtGGruppo A", true},
        {2, "cmbGH", "set cmbGH 03", true},
        {2, "cmbGTipo", "pick cmbGTipo Gpl", true},
    };
    storeTrip(2);
    open();
    work("<g>;row mfgTab 1;set txtGDescr museo;set txtGGruppo B;set cmbGH 01;click cmdSalvaRiga;"
         "row mfgTab 1;set txtGDescr zoo;set txtGGruppo B;set cmbGH 01;click cmdSalvaRiga");
    close();
    const QByteArray stored = contents(inFolder("Vanzer.mdb"));
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.change) + ", " + c.focus);
        forgetArchive();
        writeFile(inFolder("Vanzer.mdb"), stored);
        open();
        work("<g>;set cmbGH 01");
        const auto before = records("GuidaCitta");
        enterAfter(c);
        const auto after = records("GuidaCitta");
        EXPECT_EQ(isSeen(QStringLiteral("frmframe_24")), c.taken);
        EXPECT_EQ(after != before, c.taken);
        EXPECT_TRUE(boxes.none());
        if (c.taken)
            press("<Return>");
        sees("-frmframe_24");
        EXPECT_TRUE(records("GuidaCitta") == after) << "once more only leaves";
    }
}

} // namespace
} // namespace vanzer::desktop
