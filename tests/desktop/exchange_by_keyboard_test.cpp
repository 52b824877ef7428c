// Destinations exported to a file and imported from it, by keys alone.
#include "desktop_fixture.h"

namespace vanzer::desktop {
namespace {

class ExchangeByKeyboard : public DesktopTest {
  protected:
    void exportTo(const QString& path) {
        boxes.expect(Qt::Key_Return);
        boxes.expect(Qt::Key_Return);
        tabTo("cmdImExp_0");
        withFile(path, [this] { key(Qt::Key_Return); });
    }

    [[nodiscard]] QString name(int list, int row) { return form().mfgImExp(list).cell(row, 1); }
};

TEST_F(ExchangeByKeyboard, ATripGoesOutAndComesInUnderAnotherName) {
    storeTrip(5);
    open();
    letter('x');
    ASSERT_TRUE(isSeen("frmframe_22"));
    EXPECT_EQ(focusName(), QStringLiteral("cmdImportExport_0"));
    letter('e');
    EXPECT_EQ(focusName(), QStringLiteral("mfgImExp_0"));
    EXPECT_FALSE(find("cmdImExp_0")->isEnabled());
    key(Qt::Key_Return);
    EXPECT_EQ(name(1, 1), QStringLiteral("PROVA"));
    EXPECT_EQ(textOf("cmdTutto_1"), QStringLiteral("<--- Tutti [1]"));
    const QString path = directory.filePath(QStringLiteral("prova.iei"));
    exportTo(path);
    ASSERT_EQ(boxes.shown().size(), 2U);
    EXPECT_EQ(boxes.shown()[1].text, QStringLiteral("Le mète esportate si trovano sul file ") + path);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QByteArray renamed = file.readAll().replace("PROVA", "ALTRA");
    file.resize(0);
    file.write(renamed);
    file.close();
    boxes.forget();

    key(Qt::Key_Escape);
    EXPECT_FALSE(isSeen("frmframe_22"));
    letter('x');
    withFile(path, [this] { letter('i'); });
    EXPECT_EQ(focusName(), QStringLiteral("mfgImExp_1"));
    EXPECT_EQ(name(1, 1), QStringLiteral("ALTRA"));
    key(Qt::Key_Space);
    boxes.expect(Qt::Key_Return);
    boxes.expect(Qt::Key_Return);
    tabTo("cmdImExp_0");
    key(Qt::Key_Space);
    ASSERT_EQ(boxes.shown().size(), 2U);
    EXPECT_EQ(boxes.shown()[1].text, QStringLiteral("Sono stati inseriti:\n\n1 mète/itinerari;\n5 tratti stradali;\n0 "
                                                    "guide/informazioni località.\n\n"));
    EXPECT_FALSE(isSeen("frmframe_22"));
    EXPECT_TRUE(find("cmdExport")->isEnabled());
    EXPECT_EQ(form().archivio.tabella(QStringLiteral("Itinerari")).record.size(), 10U);
}

TEST_F(ExchangeByKeyboard, AnOlderFileIsAskedForOnce) {
    storeTrip(2);
    const QString path = directory.filePath(QStringLiteral("prova.iei"));
    QFile older(path);
    ASSERT_TRUE(older.open(QIODevice::WriteOnly));
    older.close();
    open();
    letter('x');
    letter('e');
    key(Qt::Key_Return);
    boxes.expect(Qt::Key_S); // Enter would be no
    exportTo(path);
    ASSERT_EQ(boxes.shown().size(), 3U);
    EXPECT_EQ(boxes.shown()[0].title, QStringLiteral("File %1 esistente").arg(path));
    EXPECT_GT(QFileInfo(path).size(), 300);
}

TEST_F(ExchangeByKeyboard, TheMarkMovesWithTheArrowsAndStaysInTheList) {
    storeTrip(2);
    open();
    for (const char* place : {"aosta", "zara"}) {
        typeDestination(place, "italia");
        boxes.forget();
    }
    letter('x');
    letter('e');
    const auto* const list = &form().mfgImExp(0);
    const struct {
        int key;
        int row;
    } steps[] = {{Qt::Key_Down, 2}, {Qt::Key_Up, 1},   {Qt::Key_Up, 1},     {Qt::Key_End, 14}, {Qt::Key_Down, 14},
                 {Qt::Key_Home, 1}, {Qt::Key_Down, 2}, {Qt::Key_PageUp, 1}, {Qt::Key_Down, 2}};
    for (const auto& step : steps) {
        key(step.key);
        EXPECT_EQ(list->row(), step.row);
    }
    key(Qt::Key_Space);
    EXPECT_EQ(name(1, 1), QStringLiteral("PROVA"));
    key(Qt::Key_Return);
    EXPECT_EQ(name(1, 2), QStringLiteral("ZARA"));
    EXPECT_EQ(focusName(), QStringLiteral("mfgImExp_0"));
    key(Qt::Key_Return);
    EXPECT_EQ(name(0, 1), QString());
    EXPECT_EQ(name(1, 1), QStringLiteral("AOSTA"));
    EXPECT_FALSE(find("cmdTutto_0")->isEnabled());
}

TEST_F(ExchangeByKeyboard, AnImportIsStoppedByEscAndLeavesNothing) {
    storeTrip(200);
    open();
    letter('x');
    letter('e');
    key(Qt::Key_Return);
    const QString path = directory.filePath(QStringLiteral("prova.iei"));
    exportTo(path);
    boxes.forget();
    close();
    forgetArchive();
    open({.patience = 0, .yields = 0, .frames = 0});
    typeDestination("aosta", "italia");
    boxes.forget();
    letter('x');
    withFile(path, [this] { letter('i'); });
    key(Qt::Key_Return);
    tabTo("cmdImExp_0");
    once(
        [this] {
            return form().stato.LavoroInCorso && QApplication::activeModalWidget() == nullptr &&
                   form().lblElaborazione.caption() == QStringLiteral("Importazione Itinerari");
        },
        [this] {
            EXPECT_EQ(textOf("cmdEsce"), QStringLiteral("&Stop"));
            QTest::keyClick(&window(), Qt::Key_Escape);
        });
    for (int box = 0; box < 3; ++box)
        boxes.expect(Qt::Key_Return);
    key(Qt::Key_Return);
    ASSERT_EQ(boxes.shown().size(), 3U);
    EXPECT_EQ(boxes.shown()[1].text, QStringLiteral("Vuoi interrompere l'elaborazione?"));
    EXPECT_EQ(boxes.shown()[2].text, QStringLiteral("Import interrotto!\n\nNon è stato inserito nulla."));
    EXPECT_EQ(form().archivio.tabella(QStringLiteral("MeteVanzer")).record.size(), 1U);
    EXPECT_TRUE(form().archivio.tabella(QStringLiteral("Itinerari")).record.empty());
    EXPECT_EQ(textOf("txtLocalita"), QStringLiteral("AOSTA"));
    EXPECT_EQ(textOf("cmdEsce"), QStringLiteral("&Esce"));
}

} // namespace
} // namespace vanzer::desktop
