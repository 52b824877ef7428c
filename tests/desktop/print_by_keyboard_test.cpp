// A trip and its guide printed from the window by keys alone.
#include <QListView>

#include "printing_fixture.h"

namespace vanzer::desktop {
namespace {

class PrintByKeyboard : public PrintingTest {
  protected:
    /// The trip's schedule, up to the choice of the printer.
    void openChoice(int legs) {
        storeTrip(legs);
        open();
        letter('s');
        ASSERT_TRUE(isSeen("frmframe_18"));
        EXPECT_EQ(focusName(), QStringLiteral("chkTabella"));
        key(Qt::Key_Space);
        letter('s');
        ASSERT_TRUE(isSeen("frmframe_23"));
    }

    /// Marks "PDF", the last printer, and prints; the dialog that asks for the file gets this one.
    void printTo(const QString& path) {
        find("lstStampanti")->setFocus();
        key(Qt::Key_End);
        withFile(path, [this] { letter('s'); });
    }
};

TEST_F(PrintByKeyboard, AScheduleGoesToAPdf) {
    openChoice(12);
    const QString path = directory.filePath(QStringLiteral("prova.pdf"));
    for (int box = 0; box < 2; ++box)
        boxes.expect(Qt::Key_Return);
    printTo(path);
    ASSERT_EQ(boxes.shown().size(), 2U);
    EXPECT_EQ(boxes.shown()[0].text, QStringLiteral("Stampa Viandoria  completata..."));
    const QString text = textOfPdf(path);
    for (const char* printed :
         {"PROVA", "ITALIA", "Pagina: 02", "Luogo 12", "Tempi tecnici giornalieri/Riposi/Visite:"})
        EXPECT_TRUE(text.contains(QLatin1StringView(printed))) << printed;
    EXPECT_EQ(text.count(u'\f'), 2) << "the cover and one page, no blank one";
    EXPECT_TRUE(QFile::exists(directory.filePath(QStringLiteral("Vanztabl.txt"))));
    EXPECT_FALSE(isSeen("frmframe_18"));
    EXPECT_EQ(textOf("cmdCalcola"), QStringLiteral("&Sblocca"));
}

TEST_F(PrintByKeyboard, APrintIsStoppedByEsc) {
    openChoice(300);
    close();
    open({.patience = 0, .yields = 0, .frames = 0});
    letter('s');
    if (!form().chkTabella.value())
        key(Qt::Key_Space);
    letter('s');
    const QString path = directory.filePath(QStringLiteral("prova.pdf"));
    once(
        [this] {
            return form().stato.StampaInCorso && QApplication::activeModalWidget() == nullptr &&
                   form().stato.PercentualeCorrente >= 3;
        },
        [this] { QTest::keyClick(&window(), Qt::Key_Escape); });
    boxes.expect(Qt::Key_Return); // yes, stop
    boxes.expect(Qt::Key_Return);
    boxes.expect(Qt::Key_Return);
    printTo(path);
    ASSERT_EQ(boxes.shown().size(), 3U);
    EXPECT_EQ(boxes.shown()[0].text, QStringLiteral("Vuoi interrompere la stampa?"));
    EXPECT_EQ(boxes.shown()[1].text, QStringLiteral("Stampa interrotta!"));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(PrintByKeyboard, TheFramesAreLeftByEsc) {
    openChoice(3);
    key(Qt::Key_Escape);
    EXPECT_FALSE(isSeen("frmframe_23"));
    EXPECT_TRUE(isSeen("frmframe_18"));
    key(Qt::Key_Escape);
    EXPECT_FALSE(isSeen("frmframe_18"));
    EXPECT_TRUE(find("cmdCalcola")->isEnabled());
    find("cmdCalcola")->setFocus();
    key(Qt::Key_Space); // the legs back
    letter('g');
    find("cmdStampaGuidaCitta")->setFocus();
    key(Qt::Key_Space);
    EXPECT_TRUE(isSeen("frmframe_25"));
    key(Qt::Key_Escape);
    EXPECT_FALSE(isSeen("frmframe_25"));
    EXPECT_TRUE(boxes.shown().empty());
}

} // namespace
} // namespace vanzer::desktop
