// A trip planned by hand: what a user does, key by key, and what the window shows.
#include <QScreen>
#include <QSignalSpy>

#include "desktop/table_view.h"
#include "desktop_fixture.h"

namespace vanzer::desktop {
namespace {

using TripByKeyboard = DesktopTest;

TEST_F(TripByKeyboard, CalculationIsStoppedOnceAndFinishedOnce) {
    storeTrip(12);
    open({.patience = 0, .yields = 0, .frames = 0});
    const auto* const table = find<TableView>("mfgTab");
    const auto wantManyDays = [this] { form().cmbGiorni.setText(QStringLiteral("900")); }; // takes all tests
    for (const bool byClick : {false, true}) {
        wantManyDays(); // a stop brings the stored trip back
        boxes.forget();
        boxes.expect(Qt::Key_Return);
        once([this] { return textOf("cmdEsce") == QStringLiteral("&Stop"); },
             [this, byClick] {
                 EXPECT_TRUE(isSeen("txtPerc")) << "no progress line during the calculation";
                 if (byClick)
                     QTest::mouseClick(find("cmdEsce"), Qt::LeftButton);
                 else
                     EXPECT_FALSE(window().close());
             });
        letter('c');
        ASSERT_EQ(boxes.shown().size(), 1U);
        EXPECT_EQ(boxes.shown()[0].text, QStringLiteral("Vuoi interrompere l'elaborazione?"));
        EXPECT_EQ(textOf("cmdCalcola"), QStringLiteral("&Calcola"));
        EXPECT_EQ(table->model()->index(11, 1).data().toString().toStdString(), "LUOGO 12");
    }
    wantManyDays();
    boxes.forget();
    QSignalSpy grown(table->model(), &QAbstractItemModel::modelReset);
    letter('c');
    EXPECT_GT(grown.size(), 2) << "the table was not seen growing";
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_TRUE(boxes.shown()[0].text.startsWith(QStringLiteral("Elaborazione impossibile! (tentativi effettuati")));
    EXPECT_EQ(boxes.shown()[0].buttons, QStringList({QStringLiteral("OK")}));
    EXPECT_EQ(textOf("cmdCalcola"), QStringLiteral("&Sblocca"));
    EXPECT_EQ(spokenName(*find("cmdCalcola")), QStringLiteral("Sblocca"));
    EXPECT_EQ(focusName(), QStringLiteral("cmdCalcola"));
    EXPECT_FALSE(isSeen("txtPerc"));
    key(Qt::Key_Return);
    EXPECT_EQ(textOf("cmdCalcola"), QStringLiteral("&Calcola"));
    EXPECT_EQ(table->model()->index(11, 1).data().toString().toStdString(), "LUOGO 12");
}

TEST_F(TripByKeyboard, TableKeysMoveTheRow) {
    storeTrip(40);
    open();
    letter('i');
    find("mfgTab")->setFocus();
    const struct {
        int key;
        const char* row;
    } steps[] = {{Qt::Key_Down, "2"},      {Qt::Key_Down, "3"},      {Qt::Key_Up, "2"},     {Qt::Key_PageDown, "20"},
                 {Qt::Key_PageDown, "38"}, {Qt::Key_PageDown, "41"}, {Qt::Key_PageUp, "23"}};
    for (const auto& step : steps) {
        key(step.key);
        EXPECT_EQ(textOf("txtRiga").toStdString(), step.row);
        EXPECT_EQ(focusName(), QStringLiteral("mfgTab"));
    }
    const auto* const table = find<TableView>("mfgTab");
    EXPECT_EQ(textOf("txtTappa").toStdString(), "LUOGO 23");
    EXPECT_EQ(table->currentIndex().row(), 22);
    const QRect row = table->visualRect(table->currentIndex());
    EXPECT_TRUE(table->viewport()->rect().contains(row));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, row.center() + QPoint(0, row.height()));
    EXPECT_EQ(textOf("txtTappa").toStdString(), "LUOGO 24");
}

TEST_F(TripByKeyboard, SearchListsArePickedFromAndLeftByKeys) {
    storeTrip(12);
    open();
    letter('r');
    EXPECT_EQ(focusName(), QStringLiteral("cmbRicerca"));
    EXPECT_FALSE(find("cmdItinerario")->isEnabled());
    key(Qt::Key_Escape);
    EXPECT_FALSE(isSeen("cmbRicerca"));
    EXPECT_TRUE(find("cmdItinerario")->isEnabled());
    letter('r');
    key(Qt::Key_Return);
    EXPECT_TRUE(find("cmdItinerario")->isEnabled());
    EXPECT_EQ(textOf("txtCodice"), QStringLiteral("000001"));

    letter('i');
    letter('e');
    EXPECT_EQ(focusName(), QStringLiteral("cmbRicercaTappa"));
    EXPECT_FALSE(find("mfgTab")->isEnabled());
    key(Qt::Key_Escape);
    EXPECT_TRUE(find("mfgTab")->isEnabled());
    EXPECT_TRUE(isSeen("frmframe_12"));
    letter('e');
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(textOf("txtTappa").toStdString(), "LUOGO 10") << "sorted by name";
    EXPECT_EQ(focusName(), QStringLiteral("txtTappa"));

    open();
    letter('g');
    ASSERT_TRUE(isSeen("frmframe_24"));
    for (const Qt::Key leaves : {Qt::Key_Escape, Qt::Key_Return}) {
        letter('e');
        EXPECT_EQ(focusName(), QStringLiteral("cmbRicercaTappa"));
        EXPECT_FALSE(find("frmframe_24")->isEnabled());
        key(leaves);
        EXPECT_TRUE(find("frmframe_24")->isEnabled());
        EXPECT_EQ(focusName(), QStringLiteral("txtGDescr"));
    }
    EXPECT_EQ(textOf("txtGCitta").toStdString(), "Luogo 1");
}

TEST_F(TripByKeyboard, ASecondProgramOnTheSameArchiveIsToldSo) {
    storeTrip(2);
    open();
    FixedClock clock;
    Program second({.directory = directory.path(), .decimalMark = u'.', .versione = {}}, clock);
    EXPECT_FALSE(second.start());
    EXPECT_FALSE(second.window().isVisible());
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_TRUE(boxes.shown()[0].text.startsWith(QStringLiteral("Errore apertura database ") + directory.path()));
    EXPECT_EQ(textOf("txtLocalita"), QStringLiteral("PROVA"));
}

TEST_F(TripByKeyboard, TheCloseButtonAsksAndLeaves) {
    storeTrip(3);
    open();
    const QRect screen = window().screen()->availableGeometry();
    for (const QSize size : {QSize(1400, 900), screen.size() * 2}) {
        window().resize(size);
        boxes.expect(Qt::Key_Return);
        EXPECT_TRUE(window().close());
        EXPECT_FALSE(window().isVisible());
        open();
        EXPECT_TRUE(window().size() == size || size.width() > screen.width()) << "the window remembers its size";
        EXPECT_TRUE(screen.contains(window().frameGeometry()));
    }
}

TEST_F(TripByKeyboard, AStretchGetsItsRoadTypeAndIsSavedOrGivenUp) {
    storeTrip(8);
    open();
    const auto roads = [this] {
        QString types;
        for (int r = 1; r <= 8; ++r)
            types += form().mfgTab.cell(r, 4);
        return types.toStdString();
    };
    const std::string before = roads();
    letter('t');
    EXPECT_EQ(focusName(), QStringLiteral("cmdTappaSEl_0"));
    EXPECT_FALSE(find("cmdTappaSEl_2")->isEnabled());
    const auto* const table = find<TableView>("mfgTab");
    EXPECT_FALSE(find("frmframe_1")->geometry().intersects({table->mapTo(&window(), QPoint()), table->size()}));
    chooseRow("mfgTab", 3, "cmdTappaSEl_0");
    chooseRow("mfgTab", 5, "cmdTappaSEl_1");
    EXPECT_EQ(textOf("txttappasel_0").toStdString(), "0003 " + before.substr(2, 1) + " LUOGO 3");
    EXPECT_EQ(textOf("txttappasel_2").toStdString(), "3");
    letter('l');
    letter('a');
    EXPECT_EQ(roads(), before.substr(0, 2) + "LLL" + before.substr(5));
    EXPECT_EQ(textOf("txttappasel_1").toStdString(), "0006 " + before.substr(5, 1) + " LUOGO 6");
    letter('s');
    letter('p');
    letter('a');
    boxes.expect(Qt::Key_Escape);
    letter('f');
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown()[0].text, QStringLiteral("Vuoi salvare le modifiche apportate?"));
    EXPECT_FALSE(isSeen("frmframe_1"));
    EXPECT_EQ(roads(), before.substr(0, 2) + "LLL" + before.substr(5));
}

TEST_F(TripByKeyboard, AStretchIsCopiedBackwardsBehindTheCurrentLeg) {
    storeTrip(8);
    open();
    letter('i');
    tabTo("cmdDuplica");
    key(Qt::Key_Space);
    ASSERT_EQ(focusName(), QStringLiteral("mfgCopia"));
    EXPECT_FALSE(isSeen("frmframe_19"));
    key(Qt::Key_Return);
    ASSERT_TRUE(isSeen("frmframe_19"));
    EXPECT_FALSE(find("frmframe_12")->isEnabled());
    EXPECT_TRUE(find("frmframe_19")->geometry().contains(find("frmframe_12")->geometry()));
    EXPECT_FALSE(find("frmframe_19")->geometry().intersects(find("frmframe_17")->geometry()));
    chooseRow("mfgCopia", 4, "cmdAssegna_0");
    chooseRow("mfgCopia", 2, "cmdAssegna_1");
    EXPECT_EQ(textOf("txtInsLoc_0"), QStringLiteral("LUOGO 4"));
    EXPECT_EQ(textOf("txtInsLoc_1"), QStringLiteral("LUOGO 2"));
    boxes.expect(Qt::Key_Return);
    letter('p');
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_FALSE(isSeen("frmframe_17"));
    EXPECT_TRUE(find("frmframe_12")->isEnabled());
    QString places;
    for (int r = 1; form().mfgTab.rows() > r && !form().mfgTab.cell(r, 1).isEmpty(); ++r)
        places += form().mfgTab.cell(r, 1).last(1);
    EXPECT_EQ(places.toStdString(), "14322345678");
}

} // namespace
} // namespace vanzer::desktop
