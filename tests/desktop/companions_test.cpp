// What the window has beside the table: the first steps, the picture of the trip, the manual.
#include <array>

#include <QHelpEvent>
#include <QLabel>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTableView>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocumentFragment>
#include <QToolTip>

#include "desktop/manual_window.h"
#include "desktop/time_line_view.h"
#include "desktop_fixture.h"
#include "startup/startup.h"

namespace vanzer::desktop {
namespace {

class Companions : public DesktopTest {
  protected:
    [[nodiscard]] int trips() {
        return static_cast<int>(form().archivio.tabella(QStringLiteral("MeteVanzer")).record.size());
    }
    ManualWindow* manual() {
        letter('m');
        auto* const found = window().findChild<ManualWindow*>();
        EXPECT_NE(found, nullptr);
        return found;
    }
};

TEST_F(Companions, TheSampleTripsComeInAndThePanelGoes) {
    open();
    boxes.expect(Qt::Key_Return);
    letter('g');
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(trips(), 3);
    EXPECT_FALSE(isSeen("frmPrimiPassi"));
    EXPECT_TRUE(isSeen("mfgTab"));
    EXPECT_TRUE(find("cmdItinerario")->isEnabled());
    EXPECT_GT(form().stato.NumeroTappe, 5);
}

TEST_F(Companions, AnImportThatIsGivenUpLeadsBackToThePanel) {
    open();
    const QString file = directory.filePath(QStringLiteral("vuoto.iei"));
    QFile empty(file);
    ASSERT_TRUE(empty.open(QIODevice::WriteOnly));
    empty.close();
    withFile(file, [this] { letter('t'); });
    EXPECT_FALSE(isSeen("frmPrimiPassi"));
    ASSERT_TRUE(isSeen("frmframe_22"));
    letter('f');
    EXPECT_FALSE(isSeen("frmframe_22"));
    EXPECT_TRUE(isSeen("frmPrimiPassi"));
}

TEST_F(Companions, AFileThatTheProgramIsOpenedWithOffersItsTrips) {
    open();
    boxes.expect(Qt::Key_Return);
    window().binder().input([this] { apreViaggi(form(), QStringLiteral("/non/esiste.iei")); });
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown()[0].text, QStringLiteral("Il file /non/esiste.iei non c'è."));
    EXPECT_TRUE(isSeen("frmPrimiPassi"));
    window().binder().input([this] { apreViaggi(form(), QStringLiteral(":/esempi/sud.iei")); });
    EXPECT_TRUE(isSeen("frmframe_22"));
    EXPECT_FALSE(form().mfgImExp(1).cell(1, 1).isEmpty());
    EXPECT_EQ(trips(), 0);
}

TEST_F(Companions, TheLineOfTimeIsWorkedByKeyboard) {
    storeTrip(12);
    open();
    EXPECT_FALSE(find("cmdLinea")->isEnabled());
    letter('c');
    ASSERT_TRUE(find("cmdLinea")->isEnabled());
    letter('p');
    ASSERT_TRUE(isSeen("frmLinea"));
    EXPECT_EQ(focusName(), QStringLiteral("vistaLinea"));
    auto* const told = find<QLabel>("giornoLinea");
    const QString first = told->text();
    EXPECT_TRUE(first.startsWith(form().mfgTab.cell(1, 9) + u' ' + form().mfgTab.cell(1, 10))) << first.toStdString();
    EXPECT_EQ(find("vistaLinea")->accessibleDescription(), first);
    const auto* const picture = find<QAbstractScrollArea>("vistaLinea");
    const double lines =
        static_cast<double>(picture->verticalScrollBar()->singleStep()) / picture->fontMetrics().height();
    EXPECT_TRUE(lines >= 2 && lines < 3) << "a day is as high as its names and hours need: " << lines;
    key(Qt::Key_End);
    EXPECT_NE(told->text(), first);
    key(Qt::Key_Home);
    EXPECT_EQ(told->text(), first);
    key(Qt::Key_Escape);
    EXPECT_FALSE(isSeen("frmLinea"));
    letter('p');
    EXPECT_TRUE(isSeen("frmLinea"));
    QTest::mouseClick(find("cmdCalcola"), Qt::LeftButton); // the legs come back into the table
    EXPECT_FALSE(isSeen("frmLinea"));
    EXPECT_FALSE(find("cmdLinea")->isEnabled());
}

TEST_F(Companions, WhatLooksLikeMarkUpIsShownToTheLetter) {
    const QString marked = QStringLiteral("<img src=\"file:///manca.png\"><b>x</b>");
    storeTrip(6);
    open();
    form().cmdItinerario.click();
    form().mfgTab.clickRow(3);
    form().txtNumStrada.type(marked);
    form().cmdInserisce.click();
    const auto tip = [](QWidget& over, const QPoint& at) {
        QHelpEvent asked(QEvent::ToolTip, at, over.mapToGlobal(at));
        QApplication::sendEvent(&over, &asked);
        return QToolTip::text();
    };
    const auto told = [](const QString& text) { return QTextDocumentFragment::fromHtml(text).toPlainText(); };
    auto* const table = find<QTableView>("mfgTab");
    window().binder().flush();
    const QModelIndex road = table->model()->index(2, 2);
    table->setColumnWidth(2, 40);
    EXPECT_EQ(told(tip(*table->viewport(), table->visualRect(road).center())), marked);
    boxes.expect(Qt::Key_Return);
    form().cmdFine.click();
    form().cmdCalcola.click();
    form().cmdLinea.click();
    window().binder().flush();
    auto* const picture = find<QAbstractScrollArea>("vistaLinea");
    bool seen = false;
    for (int y = 0; !seen && y < picture->viewport()->height(); y += 16) {
        for (int x = 0; !seen && x < picture->viewport()->width(); x += 4)
            seen = told(tip(*picture->viewport(), {x, y})).contains(marked);
    }
    EXPECT_TRUE(seen);
    seeAllFrames();
    form().cmdLinea.setTooltip(marked);
    window().binder().flush();
    EXPECT_EQ(told(find("cmdLinea")->toolTip()), marked);
    for (const auto* const label : window().findChildren<QLabel*>()) {
        if (label->windowType() != Qt::ToolTip) {
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
        }
    }
    boxes.forget();
    boxes.expect(Qt::Key_Return);
    form().messaggioFile(marked, {marked});
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_TRUE(boxes.shown()[0].plain);
}

/// From an empty archive to the calendar of the trip, the mouse left alone.
TEST_F(Companions, AWholeTripIsPlannedByKeyboard) {
    open();
    const auto expectFocus = [this](const char* name) {
        QWidget* const focused = QApplication::focusWidget();
        ASSERT_NE(focused, nullptr) << "instead of " << name;
        EXPECT_TRUE(focused->isVisible());
        EXPECT_EQ(focusName().toStdString(), name);
    };
    EXPECT_TRUE(isSeen("frmPrimiPassi"));
    letter('p');
    EXPECT_FALSE(isSeen("frmPrimiPassi"));
    expectFocus("txtLocalita");
    write("garda");
    tab();
    write("italia");
    boxes.expect(Qt::Key_Return);
    letter('v');
    letter('i');
    typeLegs(
        std::array{TypedLeg{"bologna", "", ""}, TypedLeg{"verona", "a22", "133"}, TypedLeg{"garda", "sr249", "35"}});
    EXPECT_EQ(textOf("txtRiga"), QStringLiteral("4"));
    EXPECT_EQ(textOf("txtKmTot_4"), QStringLiteral("168"));
    boxes.expect(Qt::Key_Return);
    key(Qt::Key_Return); // nothing is typed: the default button asks whether to store
    EXPECT_FALSE(isSeen("frmframe_12"));
    letter('g'); // the guide, at the last place
    for (int down = 0; down < 2; ++down)
        key(Qt::Key_Down);
    tabTo("txtGDescr");
    write("rocca");
    tab();
    tab();
    write("01");
    letter('s');
    key(Qt::Key_Return);
    letter('c');
    EXPECT_EQ(textOf("cmdCalcola"), QStringLiteral("&Sblocca"));
    letter('p');
    expectFocus("vistaLinea");
    key(Qt::Key_Escape);
    letter('s'); // shared: the letter goes from one button to the other
    if (focusName() != QStringLiteral("cmdStampa"))
        letter('s');
    expectFocus("cmdStampa");
    key(Qt::Key_Return);
    expectFocus("chkTabella");
    boxes.forget();
    boxes.expect(Qt::Key_Return);
    const QString calendar = directory.filePath(QStringLiteral("garda.ics"));
    withFile(calendar, [this] { letter('l'); });
    ASSERT_EQ(boxes.shown().size(), 1U);
    QFile written(calendar);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_TRUE(written.readAll().contains("SUMMARY:Rocca"));
    key(Qt::Key_Escape);
    EXPECT_FALSE(isSeen("frmframe_18"));
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_TRUE(QApplication::focusWidget()->isVisible());
}

TEST_F(Companions, TheManualOpensWithAllItsPicturesAndCanBeSearched) {
    open();
    ManualWindow* const opened = manual();
    ASSERT_NE(opened, nullptr);
    auto* const text = opened->findChild<QTextBrowser*>();
    auto* const chapters = opened->findChild<QListWidget*>();
    EXPECT_GT(chapters->count(), 12);
    EXPECT_FALSE(text->toPlainText().contains(QStringLiteral("cmdCalcola")));
    int pictures = 0;
    for (QTextBlock block = text->document()->begin(); block.isValid(); block = block.next()) {
        for (const QTextLayout::FormatRange& range : block.textFormats()) {
            if (!range.format.isImageFormat())
                continue;
            ++pictures;
            const QUrl name(range.format.toImageFormat().name());
            EXPECT_FALSE(text->document()->resource(QTextDocument::ImageResource, name).value<QImage>().isNull())
                << name.toString().toStdString();
        }
    }
    EXPECT_GT(pictures, 10);
    auto* const wanted = opened->findChild<QLineEdit*>();
    wanted->setText(QStringLiteral("foglio di calcolo"));
    QTest::keyClick(wanted, Qt::Key_Return);
    EXPECT_EQ(text->textCursor().selectedText().toLower(), QStringLiteral("foglio di calcolo"));
    chapters->setCurrentRow(chapters->count() - 1);
    EXPECT_EQ(text->textCursor().block().text(), chapters->currentItem()->text());
    EXPECT_EQ(manual(), opened);
}

TEST_F(Companions, WhatTheManualNamesIsInTheWindow) {
    open();
    seeAllFrames();
    // Captions that come and go.
    QStringList captions{QStringLiteral("Sblocca"), QStringLiteral("Esporta"), QStringLiteral("Converte vecchi file")};
    for (const auto& control : form().controls()) {
        if (const auto* const captioned = dynamic_cast<const Captioned*>(control.get()))
            captions << QString(captioned->caption()).remove(u'&').trimmed();
    }
    for (const auto* const button : window().findChildren<QAbstractButton*>())
        captions << button->text().remove(u'&').trimmed();
    QFile file(QStringLiteral(":/manuale/manuale.md"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    static const QRegularExpression comment(QStringLiteral("<!--.*?-->"),
                                            QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression named(QStringLiteral("`([^`]+)`"));
    int count = 0;
    for (const QRegularExpressionMatch& match : named.globalMatch(QString::fromUtf8(file.readAll()).remove(comment))) {
        const QString name = match.captured(1);
        EXPECT_TRUE(captions.contains(name)) << name.toStdString();
        ++count;
    }
    EXPECT_GT(count, 30);
}

} // namespace
} // namespace vanzer::desktop
