// SPDX-License-Identifier: MIT
// What the desktop's printers put on paper, read from the PDF. Also the preview and the frames of printing.
#include <QApplication>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QListView>
#include <QRegularExpression>

#include "batch/queue_ports.h"
#include "desktop/desktop_printer.h"
#include "desktop/print_preview.h"
#include "desktop_fixture.h"
#include "store/outside_files.h"
#include "support/full_disk.h"

namespace vanzer::desktop {
namespace {

/// A printer that writes its files into the test's folder.
class Printing : public DesktopTest {
  protected:
    void SetUp() override {
        DesktopTest::SetUp();
        printer.nomeRiservato = [this](const QString& path) {
            return store::motivoRiservato(path, inFolder("Vanzer.mdb"));
        };
        printer.choose(QStringLiteral("pdf"));
        ASSERT_EQ(printer.current(), QStringLiteral("PDF"));
    }

    static int pageCount(const QString& pdf) {
        static const QRegularExpression pages(QStringLiteral("Pages: +(\\d+)"));
        return pages.match(output("pdfinfo", {pdf})).captured(1).toInt();
    }

    void drawPages(int pages) {
        for (int i = 1; i <= pages; ++i) {
            printer.text({20, 20}, QStringLiteral("Viandoria%1").arg(i));
            if (i < pages)
                printer.newPage();
        }
    }

    [[nodiscard]] QStringList filesThere() const {
        return QDir(directory.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    batch::QueuedDialogs files;
    SystemClock clock;
    DesktopPrinter printer{files, clock};
};

TEST_F(Printing, TextsStandWhereTheyWereDrawnAndAreAsWideAsMeasured) {
    // font, bold, italic, points, place, text
    const std::tuple<const char*, bool, bool, double, Punto, const char*> cases[] = {
        {"Agency FB", false, false, 9, {0, 0}, "Angolo"},
        {"Agency FB", true, false, 9, {18, 49}, "Località"},
        {"Agency FB", false, true, 6.5, {161, 290}, "Żółć-Łódź"},
        {"Times new roman", false, false, 10, {66.5, 120}, "Санкт-Петербург"},
        {"Times new roman", true, true, 48, {16, 135}, "Ålesund"},
    };
    const QString pdf = inFolder("testi.pdf");
    files.enqueue(pdf);
    std::vector<QSizeF> measured;
    for (const auto& [font, bold, italic, size, at, text] : cases) {
        printer.setFontName(font);
        printer.setBold(bold);
        printer.setItalic(italic);
        printer.setFontSize(size);
        measured.emplace_back(printer.textWidth(text), printer.textHeight(text));
        printer.text(at, text);
    }
    printer.newPage();
    printer.text({30, 30}, QStringLiteral("Seconda"));
    printer.endDoc();

    const QString found = output("pdftotext", {QStringLiteral("-bbox"), pdf, QStringLiteral("-")});
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        const auto& [font, bold, italic, size, at, text] = cases[i];
        const QRegularExpression word(
            QStringLiteral("<word xMin=\"(.*)\" yMin=\"(.*)\" xMax=\"(.*)\" yMax=\"(.*)\">%1<").arg(text));
        const auto mm = [box = word.match(found)](int n) { return box.captured(n).toDouble() * paper::mmPerPoint; };
        EXPECT_NEAR(mm(1), at.x, 0.5) << text;
        EXPECT_NEAR(mm(2), at.y, 0.5) << text;
        EXPECT_NEAR(mm(3) - mm(1), measured[i].width(), 0.5) << text;
        EXPECT_NEAR(mm(4) - mm(2), measured[i].height(), 0.5) << text;
    }
    EXPECT_GT(found.indexOf(QStringLiteral(">Seconda<")), found.lastIndexOf(QStringLiteral("<page ")));
    const QStringList fonts = output("pdffonts", {pdf}).split(u'\n', Qt::SkipEmptyParts).mid(2);
    EXPECT_EQ(fonts.filter(QStringLiteral(" yes yes yes ")), fonts) << "embedded";
    EXPECT_GE(fonts.size(), 5) << "regular, bold and italic faces";

    printer.setFontName(QStringLiteral("Carattere che non c'è"));
    EXPECT_NE(printer.fontName(), QStringLiteral("Carattere che non c'è"));
    printer.setFontName(QStringLiteral("Agency FB"));
    printer.setBold(false);
    printer.setFontSize(9);
    const double regular = printer.textWidth(QStringLiteral("San Giovanni Rotondo"));
    EXPECT_LT(printer.textWidth(QStringLiteral("28/12")) + 1, 8) << "a date fits its column of 8 mm unshrunk";
    EXPECT_LT(printer.textHeight(QStringLiteral("x")), 4.5) << "a line fits a row";
    printer.setBold(true);
    EXPECT_GT(printer.textWidth(QStringLiteral("San Giovanni Rotondo")), regular);
}

TEST_F(Printing, LinesBoxesAndPicturesFillTheirPlaces) {
    const QString pdf = inFolder("forme.pdf");
    files.enqueue(pdf);
    printer.box({40, 10}, {130, 20}, 3, 0xc0ffc0U);
    printer.box({140, 20}, {135, 10}, 10, std::nullopt);
    printer.line({10, 50}, {200, 50}, 1);
    printer.line({60, 60}, {60, 90}, 20);
    printer.picture(Immagine::Logo, {170, 100}, {18, 18});
    printer.line({40, 150}, {60, 150}, 3);
    printer.text({45, 149}, QStringLiteral("coperto"));
    printer.box({45, 145}, {55, 155}, 1, 0xc0ffc0U);
    printer.line({50, 140}, {50, 152}, 3);
    printer.endDoc();
    EXPECT_EQ(output("pdftoppm", {QStringLiteral("-png"), QStringLiteral("-singlefile"), QStringLiteral("-r"),
                                  QStringLiteral("508"), pdf, pdf}),
              QString());
    const QImage sheet(pdf + QStringLiteral(".png"));
    ASSERT_TRUE(QRect(QPoint(210 * 20 - 4, 297 * 20 - 4), QSize(9, 9)).contains(sheet.width(), sheet.height()));
    enum class Ink { Black, White, Green, Colour };
    const std::tuple<double, double, Ink, const char*> cases[] = {
        {85, 15, Ink::Green, "filled"},
        {39.9, 15, Ink::Black, "its edge, 0.3 mm"},
        {39.7, 15, Ink::White, "beside the edge"},
        {40.3, 15, Ink::Green, "within"},
        {130.1, 20.1, Ink::Black, "its far corner"},
        {137.5, 15, Ink::White, "an open box"},
        {134.6, 9.6, Ink::Black, "its corner"},
        {100, 50, Ink::Black, "a line of 0.1 mm"},
        {100, 50.15, Ink::White, "below it"},
        {59.1, 75, Ink::Black, "a line of 2 mm"},
        {58.9, 75, Ink::White, "beside it"},
        {60, 59.8, Ink::White, "above its end"},
        {187, 109, Ink::Colour, "a picture"},
        {187, 118.2, Ink::White, "below it"},
        {47, 150, Ink::Green, "a box laid over it"},
        {50, 151.5, Ink::Black, "a line laid over the box"},
        {50, 153, Ink::Green, "below its end"},
    };
    for (const auto& [x, y, wanted, what] : cases) {
        const QColor seen = sheet.pixelColor(static_cast<int>(x * 20), static_cast<int>(y * 20));
        const int lightness = seen.lightness();
        const Ink ink = seen == QColor(0xc0, 0xff, 0xc0)           ? Ink::Green
                        : lightness > 250                          ? Ink::White
                        : lightness < 60 && seen.saturation() < 10 ? Ink::Black
                                                                   : Ink::Colour;
        EXPECT_EQ(ink, wanted) << what << ": " << seen.name().toStdString();
    }
}

TEST_F(Printing, ThePdfAsksForItsFileOnceAndACancelDropsTheDocument) {
    EXPECT_EQ(printer.names().last(), QStringLiteral("PDF"));
    printer.choose(QStringLiteral("Stampante che non c'è"));
    EXPECT_EQ(printer.current(), QStringLiteral("PDF"));
    const std::tuple<const char*, const char*, int> cases[] = {
        {"viaggio.pdf", "viaggio.pdf", 3}, {"Capo Nord 2.0", "Capo Nord 2.0.pdf", 1},
        {"GUIDA.PDF", "GUIDA.PDF", 2},     {"", "", 2},
        {"viaggio.pdf", "viaggio.pdf", 1},
    };
    for (const auto& [answer, file, pages] : cases) {
        files.enqueue(*answer == '\0' ? QString() : inFolder(answer));
        drawPages(pages);
        EXPECT_EQ(printer.page(), pages);
        const QJsonArray asked = files.exchange({});
        EXPECT_EQ(asked.size(), 1);
        EXPECT_EQ(asked[0][u"filter"].toString(), QStringLiteral("PDF (*.pdf)|*.pdf"));
        printer.newPage(); // an end right after a new page leaves no blank sheet
        printer.endDoc();
        EXPECT_EQ(printer.page(), 0);
        printer.endDoc();
        if (*file != '\0') {
            EXPECT_EQ(pageCount(inFolder(file)), pages) << file;
        }
    }
    EXPECT_EQ(filesThere().join(u'|').toStdString(), "Capo Nord 2.0.pdf|GUIDA.PDF|viaggio.pdf");
}

TEST_F(Printing, AFileThatCannotBeWrittenIsToldAndTheOlderOneStays) {
    const QString pdf = inFolder("vecchio.pdf");
    writeFile(pdf, "quello di prima");
    for (const char* folder : {"cartella.pdf", "Copie"})
        ASSERT_TRUE(QDir().mkdir(inFolder(folder)));
    const auto failure = [this](int pages) -> QString {
        try {
            drawPages(pages);
            printer.endDoc();
        } catch (const PrinterError& error) {
            EXPECT_EQ(printer.page(), 0) << "the document is dropped";
            return error.testo;
        }
        return {};
    };
    for (const char* path : {"non c'è/a.pdf", "vecchio.pdf/a.pdf", "cartella.pdf", "Copie/a.pdf"}) {
        files.enqueue(inFolder(path));
        const QString text = failure(1);
        EXPECT_TRUE(text.contains(QDir::toNativeSeparators(inFolder(path)))) << path << ": " << text.toStdString();
    }
    // The disk gets full while pages are written, and at the very end.
    for (const auto& [pages, room] : {std::pair{400, 100'000}, std::pair{1, 0}}) {
        files.enqueue(pdf);
        const FullDisk full(static_cast<rlim_t>(room));
        const QString text = failure(pages);
        EXPECT_TRUE(text.contains(pdf) && text.contains(QStringLiteral("disco"))) << text.toStdString();
        EXPECT_EQ(contents(pdf), "quello di prima");
    }
    files.enqueue(pdf);
    EXPECT_EQ(failure(2), QString()) << "a new document can be begun";
    EXPECT_EQ(pageCount(pdf), 2);
    EXPECT_EQ(filesThere(), QStringList(QStringLiteral("vecchio.pdf")));
}

TEST_F(Printing, ThePreviewIsHadAndLeft) {
    open();
    show(form().frmframe(23), true);
    EXPECT_FALSE(find<PreviewCheck>("anteprima")->isChecked());
    press("<p>");
    EXPECT_TRUE(find<PreviewCheck>("anteprima")->isChecked());
    open();
    seeAllFrames();
    EXPECT_TRUE(find<PreviewCheck>("anteprima")->isChecked()) << "remembered";

    const QString pdf = inFolder("anteprima.pdf");
    const std::tuple<const char*, const char*, int> cases[] = {
        {"<Esc>", "Pagina 1 di 3", 0},
        {"<PgDown><PgUp><End><PgDown><r>", "Pagina 3 di 3", 0},
        {"<PgDown>+-<Return>", "Pagina 2 di 3", 3},
        {"<s>", "Pagina 1 di 3", 3},
    };
    for (const auto& [keys, lastPage, sent] : cases) {
        SCOPED_TRACE(keys);
        QFile::remove(pdf);
        files.enqueue(pdf);
        drawPages(3);
        const auto isUp = [] { return qobject_cast<PrintPreview*>(QApplication::activeWindow()) != nullptr; };
        once(isUp, [this, &keys = keys, &lastPage = lastPage] {
            auto& preview = dynamic_cast<PrintPreview&>(*QApplication::activeWindow());
            press(keys);
            EXPECT_EQ(preview.findChild<QLabel*>(QStringLiteral("pagina"))->text().toStdString(), lastPage);
            QTest::qWait(200); // a button pressed by a letter stays down for a moment
            EXPECT_FALSE(preview.isVisible()) << "the keys leave the preview";
            if (preview.isVisible())
                preview.reject();
        });
        printer.endDoc();
        EXPECT_EQ(printer.page(), 0);
        EXPECT_EQ(QFile::exists(pdf) ? pageCount(pdf) : 0, sent);
    }
    press("<p>"); // belongs to a frame that isn't open
    EXPECT_TRUE(previewWanted());
}

TEST_F(Printing, TheFramesAreWorkedByKeyboard) {
    open();
    show(form().frmframe(18), true);
    press("<d>");
    EXPECT_TRUE(form().chkVociFrontespizio(1).value());
    find("chkModuli")->setFocus();
    form().lstStampanti.setEntries({QStringLiteral("Ufficio"), QStringLiteral("Casa"), QStringLiteral("PDF")});
    show(form().frmframe(23), true);
    auto* const list = find<QListView>("lstStampanti");
    EXPECT_FALSE(list->currentIndex().isValid() || !form().lstStampanti.text().isEmpty()) << "none chosen beforehand";
    for (const char* name : {"Casa", "PDF"}) {
        press("<Down>");
        EXPECT_EQ(form().lstStampanti.text().toStdString(), name);
    }
    bool printed = false;
    form().cmdSelStampante(0).onClick = [&printed] { printed = true; };
    press("<s>");
    EXPECT_TRUE(printed) << "of two buttons with one letter the one of the frame at hand";
    form().lstStampanti.clear();
    show(form().frmframe(23), false);
    sees("@chkModuli"); // the focus returns
    form().lstStampanti.setEntries({QStringLiteral("PDF")});
    show(form().frmframe(23), true);
    EXPECT_FALSE(list->currentIndex().isValid()) << "nor the next time";
}

TEST_F(Printing, TheGuidesOptionsFollowTheGuide) {
    storeTrip(2);
    open();
    press("<g>");
    show(form().frmframe(25), true);
    sees("@optGuidaListaStampa_1");
    press("<t>");
    EXPECT_TRUE(form().optGuidaListaStampa(0).value());
    press("<g>");
    EXPECT_TRUE(form().optGuidaDettaglioStampa(1).value());
    press("<l>");
    EXPECT_TRUE(form().optGuidaDettaglioStampa(0).value()) << "though a label beside the frame has the letter too";
    form().frmframe(24).setEnabled(false);
    show(form().frmframe(24), true);
    sees("/cmdStampaGuida_0;+frmframe_25");
    form().frmframe(24).setEnabled(true);
    show(form().frmframe(24), false);
    sees("-frmframe_25");
    show(form().frmframe(24), true);
    sees("*cmdStampaGuida_0;+frmframe_25");
}

} // namespace
} // namespace vanzer::desktop
