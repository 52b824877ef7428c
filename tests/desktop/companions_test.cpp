// SPDX-License-Identifier: MIT
// What the window has beside the table: the first steps, texts shown without mark-up, the manual.
#include <QHelpEvent>
#include <QLabel>
#include <QRegularExpression>
#include <QTableView>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocumentFragment>
#include <QToolTip>

#include "desktop/manual_window.h"
#include "desktop_fixture.h"

namespace vanzer::desktop {
namespace {

using Companions = DesktopTest;

TEST_F(Companions, TheFirstStepsLeadToTrips) {
    writeFile(inFolder("vuoto.iei"), {});
    open();
    boxes.expect(Qt::Key_Return);
    program().openTrips(QStringLiteral("/non/esiste.iei"));
    story({{"", "?Il file /non/esiste.iei non c'è.;+frmPrimiPassi"}});
    pressFor(inFolder("vuoto.iei"), "<t>");
    story({{"", "-frmPrimiPassi;+frmframe_22"}, {"<f>", "-frmframe_22;+frmPrimiPassi"}});
    program().openTrips(QStringLiteral(":/esempi/sud.iei"));
    story({{"", "+frmframe_22"}});
    EXPECT_NE(textOf("mfgImExp(1):1:1"), "");
    EXPECT_TRUE(records("MeteVanzer").empty());
    open();
    story({{"[Return]<g>", "?;-frmPrimiPassi;+mfgTab;*cmdItinerario"}});
    EXPECT_EQ(records("MeteVanzer").size(), 3U);
    EXPECT_GT(form().stato.NumeroTappe, 5);
}

TEST_F(Companions, WhatLooksLikeMarkUpIsShownToTheLetter) {
    const QString marked = QStringLiteral("<img src=\"file:///manca.png\"><b>x</b>");
    storeTrip(6);
    open();
    work("click cmdItinerario;row mfgTab 3");
    form().txtNumStrada.type(marked);
    work("click cmdInserisce");
    const auto tip = [](QWidget& over, const QPoint& at) {
        QHelpEvent asked(QEvent::ToolTip, at, over.mapToGlobal(at));
        QApplication::sendEvent(&over, &asked);
        return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
    };
    auto* const table = find<QTableView>("mfgTab");
    table->setColumnWidth(2, 40);
    EXPECT_EQ(tip(*table->viewport(), table->visualRect(table->model()->index(2, 2)).center()), marked);
    boxes.expect(Qt::Key_Return);
    work("click cmdFine;click cmdCalcola;click cmdLinea");
    QWidget* const picture = find<QAbstractScrollArea>("vistaLinea")->viewport();
    bool seen = false;
    for (int y = 0; !seen && y < picture->height(); y += 16) {
        for (int x = 0; !seen && x < picture->width(); x += 4)
            seen = tip(*picture, {x, y}).contains(marked);
    }
    EXPECT_TRUE(seen);
    seeAllFrames();
    form().cmdLinea.setTooltip(marked);
    window().binder().flush();
    EXPECT_EQ(QTextDocumentFragment::fromHtml(find("cmdLinea")->toolTip()).toPlainText(), marked);
    for (const auto* const label : window().findChildren<QLabel*>())
        EXPECT_TRUE(label->windowType() == Qt::ToolTip || label->textFormat() == Qt::PlainText)
            << label->objectName().toStdString();
}

TEST_F(Companions, TheManualOpensWithAllItsPicturesAndCanBeSearched) {
    open();
    press("<m>");
    auto* const manual = window().findChild<ManualWindow*>();
    ASSERT_NE(manual, nullptr);
    auto* const text = manual->findChild<QTextBrowser*>();
    auto* const chapters = manual->findChild<QListWidget*>();
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
    auto* const wanted = manual->findChild<QLineEdit*>();
    wanted->setText(QStringLiteral("foglio di calcolo"));
    QTest::keyClick(wanted, Qt::Key_Return);
    EXPECT_EQ(text->textCursor().selectedText().toLower(), QStringLiteral("foglio di calcolo"));
    chapters->setCurrentRow(chapters->count() - 1);
    EXPECT_EQ(text->textCursor().block().text(), chapters->currentItem()->text());
    press("<m>");
    EXPECT_EQ(window().findChildren<ManualWindow*>().size(), 1);
}

TEST_F(Companions, WhatTheManualNamesIsInTheWindow) {
    open();
    seeAllFrames();
    // Captions that change at run time.
    QStringList captions{QStringLiteral("Sblocca"), QStringLiteral("Esporta"), QStringLiteral("Converte vecchi file")};
    for (const auto& control : form().controls()) {
        if (const auto* const captioned = dynamic_cast<const Captioned*>(control.get()))
            captions << QString(captioned->caption()).remove(u'&').trimmed();
    }
    for (const auto* const button : window().findChildren<QAbstractButton*>())
        captions << button->text().remove(u'&').trimmed();
    static const QRegularExpression comment(QStringLiteral("<!--.*?-->"),
                                            QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression named(QStringLiteral("`([^`]+)`"));
    const QString manual = QString::fromUtf8(contents(QStringLiteral(":/manuale/manuale.md"))).remove(comment);
    EXPECT_GT(manual.count(named), 30);
    for (const QRegularExpressionMatch& match : named.globalMatch(manual))
        EXPECT_TRUE(captions.contains(match.captured(1))) << match.captured(1).toStdString();
}

} // namespace
} // namespace vanzer::desktop
