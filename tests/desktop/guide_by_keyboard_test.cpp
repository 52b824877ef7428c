// The guide kept by hand: notes typed one after the other, the mouse left alone.
#include <QLineEdit>

#include "desktop/table_view.h"
#include "desktop_fixture.h"
#include "guide/entries.h"

namespace vanzer::desktop {
namespace {

class GuideByKeyboard : public DesktopTest {
  protected:
    void openGuide(int legs) {
        storeTrip(legs);
        open();
        letter('g');
        ASSERT_TRUE(isSeen("frmframe_24"));
    }

    [[nodiscard]] std::string cell(int row, ColonnaGuida column) {
        return find<TableView>("mfgTab")->model()->index(row - 1, column).data().toString().toStdString();
    }

    [[nodiscard]] AspettoRiga::Tipo kind(int row) { return find<TableView>("mfgTab")->look(row).tipo; }
};

TEST_F(GuideByKeyboard, ThirtyNotesInARow) {
    constexpr int places = 10;
    openGuide(places);
    EXPECT_EQ(focusName(), QStringLiteral("txtGDescr"));
    for (int place = 0; place < places; ++place) {
        write("un museo");
        if (place == 0) { // what is told once stays for the notes that follow
            tab();
            EXPECT_EQ(focusName(), QStringLiteral("cmbGTipo"));
            key(Qt::Key_Down);
            tab();
            write("01");
            tab();
            write("30");
        }
        letter('s');
        write("il duomo");
        letter('s');
        EXPECT_EQ(focusName(), QStringLiteral("txtGDescr"));
        EXPECT_EQ(textOf("txtGDescr"), QString());
        // The row key stores the third one and moves to the first entry, past the three of them to the next place.
        write("area di sosta");
        for (int down = 0; down < 4; ++down)
            key(Qt::Key_Down);
        EXPECT_EQ(focusName(), QStringLiteral("txtGGruppo"));
        tab();
        EXPECT_EQ(focusName(), QStringLiteral("txtGDescr"));
    }
    EXPECT_TRUE(boxes.shown().empty());
    key(Qt::Key_Return);
    EXPECT_FALSE(isSeen("frmframe_24")) << "Enter closes the guide";

    open();
    letter('g');
    EXPECT_EQ(find<TableView>("mfgTab")->model()->rowCount(), 4 * places);
    const char* const sorted[] = {"Area di sosta", "Il duomo", "Un museo"};
    for (int place = 0; place < places; ++place) {
        const int row = 4 * place + 1;
        EXPECT_EQ(kind(row), AspettoRiga::Tipo::Luogo) << row;
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(kind(row + 1 + i), AspettoRiga::Tipo::Voce);
            EXPECT_EQ(QString::fromStdString(cell(row + 1 + i, guidaLuogo)).toUpper().toStdString(),
                      cell(row, guidaLuogo));
            EXPECT_EQ(cell(row + 1 + i, guidaDescrizione), sorted[i]);
            EXPECT_EQ(cell(row + 1 + i, guidaTempo), "01:30");
            EXPECT_EQ(cell(row + 1 + i, guidaTipo), "Da vedere");
        }
    }
}

TEST_F(GuideByKeyboard, GroupsAndShortFormsAreTyped) {
    openGuide(2);
    key(Qt::Key_Backtab);
    EXPECT_EQ(focusName(), QStringLiteral("txtGGruppo"));
    write("b_-à a");
    EXPECT_EQ(textOf("txtGGruppo"), QStringLiteral("B-A"));
    tab();
    write("diars");
    EXPECT_EQ(textOf("txtGDescr"), QStringLiteral("Diari di bordo"));
    EXPECT_EQ(textOf("cmbGTipo"), QStringLiteral("Diari bordo"));
    tab();
    write("gpl");
    letter('s');
    EXPECT_EQ(cell(2, guidaGruppo), "B-A");
    EXPECT_EQ(cell(2, guidaDescrizione), "Diari di bordo");
    EXPECT_EQ(cell(2, guidaTipo), "Gpl");
    // The description is kept beside a group, and typing replaces it; a group typed on an entry is stored by a row key.
    write("stazione");
    EXPECT_EQ(textOf("txtGDescr"), QStringLiteral("stazione"));
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_Delete);
    letter('f');
    letter('g');
    EXPECT_EQ(cell(2, guidaGruppo), "A-B");
    key(Qt::Key_Down);
    key(Qt::Key_Up);
    key(Qt::Key_Down);
    EXPECT_EQ(textOf("txtGGruppo"), QStringLiteral("A-B"));
    write("z");
    key(Qt::Key_Up);
    EXPECT_EQ(cell(2, guidaGruppo), "Z");
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(GuideByKeyboard, ALetterThatALabelSharesOnlyMovesTheFocus) {
    openGuide(2);
    QSet<QString> reached;
    for (int i = 0; i < 2; ++i) {
        letter('t');
        reached << focusName();
    }
    EXPECT_EQ(reached, QSet<QString>({QStringLiteral("cmbGTipo"), QStringLiteral("cmdStampaGuidaCitta")}));
}

} // namespace
} // namespace vanzer::desktop
