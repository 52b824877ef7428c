// What the printers of the desktop bring to paper, read back from the PDF; the preview; the frames of printing.
#include <deque>
#include <functional>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QListView>
#include <QRadioButton>

#include "batch/batch_printer.h"
#include "batch/queue_ports.h"
#include "desktop/print_preview.h"
#include "printing_fixture.h"
#include "reports/sheet.h"
#include "support/full_disk.h"

namespace vanzer::desktop {
namespace {

using Printing = PrintingTest;

/// Works the preview that comes up with keys, and keeps what it said of its page after each.
class PreviewKeys : public QObject {
  public:
    explicit PreviewKeys(std::vector<QKeyCombination> keys) : keys_(std::move(keys)) { qApp->installEventFilter(this); }
    ~PreviewKeys() override { qApp->removeEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* const dialog = qobject_cast<PrintPreview*>(watched);
        if (dialog != nullptr && event->type() == QEvent::Show && !event->spontaneous())
            QMetaObject::invokeMethod(
                dialog, [this, dialog] { press(*dialog); }, Qt::QueuedConnection);
        return false;
    }
    QStringList said;

  private:
    void press(PrintPreview& dialog) {
        dialog.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        for (const QKeyCombination key : keys_) {
            QTest::keyClick(dialog.focusWidget(), key.key(), key.keyboardModifiers());
            said << dialog.findChild<QLabel*>(QStringLiteral("pagina"))->text();
        }
        QTest::qWait(200); // a button that a letter presses goes down for a moment
        EXPECT_FALSE(dialog.isVisible()) << "the keys leave the preview";
        if (dialog.isVisible())
            dialog.reject();
    }
    std::vector<QKeyCombination> keys_;
};

TEST_F(Printing, TextsStandWhereTheyWereDrawnAndAreAsWideAsMeasured) {
    const struct {
        const char* font;
        bool bold;
        bool italic;
        double size;
        Punto at;
        const char* text;
    } cases[] = {
        {"Agency FB", false, false, 9, {0, 0}, "Angolo"},
        {"Agency FB", true, false, 9, {18, 49}, "Località"},
        {"Agency FB", false, true, 6.5, {161, 290}, "Żółć-Łódź"},
        {"Agency FB", false, false, 8.67, {66.5, 100}, "Θεσσαλονίκη"},
        {"Times new roman", false, false, 10, {66.5, 120}, "Санкт-Петербург"},
        {"Times new roman", true, true, 48, {16, 135}, "Ålesund"},
        {"Times new roman", false, false, 6, {199, 140}, "12.345"},
    };
    files.answers << inFolder("testi.pdf");
    std::map<QString, QSizeF> measured;
    for (const auto& c : cases) {
        printer.setFontName(QString::fromUtf8(c.font));
        EXPECT_EQ(printer.fontName().toLower(), QString::fromUtf8(c.font).toLower());
        printer.setBold(c.bold);
        printer.setItalic(c.italic);
        printer.setFontSize(c.size);
        const QString text = QString::fromUtf8(c.text);
        measured[text] = QSizeF(printer.textWidth(text), printer.textHeight(text));
        printer.text(c.at, text);
    }
    EXPECT_EQ(printer.page(), 1);
    printer.newPage();
    EXPECT_EQ(printer.page(), 2);
    printer.text({30, 30}, QStringLiteral("Seconda"));
    printer.endDoc();
    EXPECT_EQ(printer.page(), 0);

    const QString pdf = inFolder("testi.pdf");
    const std::map<QString, Word> words = wordsOf(pdf);
    for (const auto& c : cases) {
        const auto found = words.find(QString::fromUtf8(c.text));
        ASSERT_NE(found, words.end()) << c.text;
        const QRectF& box = found->second.box;
        EXPECT_EQ(found->second.page, 1) << c.text;
        EXPECT_NEAR(box.left(), c.at.x, 0.5) << c.text;
        EXPECT_NEAR(box.top(), c.at.y, 0.5) << c.text;
        EXPECT_NEAR(box.width(), measured[found->first].width(), 0.5) << c.text;
        EXPECT_NEAR(box.height(), measured[found->first].height(), 0.5) << c.text;
    }
    EXPECT_EQ(words.at(QStringLiteral("Seconda")).page, 2);
    EXPECT_TRUE(output("pdfinfo", {pdf}).contains(QStringLiteral("(A4)")));
    const QStringList fonts = output("pdffonts", {pdf}).split(u'\n', Qt::SkipEmptyParts).mid(2);
    EXPECT_GE(fonts.size(), 5) << "regular, bold and italic faces";
    for (const QString& font : fonts)
        EXPECT_TRUE(font.contains(QStringLiteral(" yes yes yes "))) << "embedded: " << font.toStdString();
}

TEST_F(Printing, LinesBoxesAndPicturesFillTheirPlaces) {
    files.answers << inFolder("forme.pdf");
    printer.box({40, 10}, {130, 20}, 3, 0xc0ffc0U);
    printer.box({140, 20}, {135, 10}, 10, std::nullopt);
    printer.line({10, 50}, {200, 50}, 1);
    printer.line({60, 60}, {60, 90}, 20);
    printer.picture(Immagine::LogoSito, {10, 100}, {15, 15});
    printer.picture(Immagine::Logo, {170, 100}, {18, 18});
    printer.line({40, 150}, {60, 150}, 3);
    printer.text({45, 149}, QStringLiteral("coperto"));
    printer.box({45, 145}, {55, 155}, 1, 0xc0ffc0U);
    printer.line({50, 140}, {50, 152}, 3);
    printer.endDoc();
    const QImage sheet = rendered("forme", 508);
    ASSERT_NEAR(sheet.width(), 210 * 20, 4);
    ASSERT_NEAR(sheet.height(), 297 * 20, 4);
    enum class Ink { Black, White, Green, Colour };
    const struct {
        double x;
        double y;
        Ink ink;
        const char* what;
    } cases[] = {
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
        {60, 59.8, Ink::White, "above its end"},
        {17.5, 102, Ink::Colour, "a picture"},
        {17.5, 115.2, Ink::White, "below it"},
        {187, 109, Ink::Colour, "the other one"},
        {47, 150, Ink::Green, "a box laid over it"},
        {50, 151.5, Ink::Black, "a line laid over the box"},
        {50, 153, Ink::Green, "below its end"},
    };
    for (const auto& c : cases) {
        const QColor seen = sheet.pixelColor(static_cast<int>(c.x * 20), static_cast<int>(c.y * 20));
        const int lightness = seen.lightness();
        const Ink ink = seen == QColor(0xc0, 0xff, 0xc0)           ? Ink::Green
                        : lightness > 250                          ? Ink::White
                        : lightness < 60 && seen.saturation() < 10 ? Ink::Black
                                                                   : Ink::Colour;
        EXPECT_EQ(ink, c.ink) << c.what << ": " << seen.name().toStdString();
    }
}

TEST_F(Printing, ThePdfOfTheBatchProgramIsTheSame) {
    batch::SetClock still;
    still.set({{2003, 6, 20}, {7, 50}});
    batch::QueuedDialogs dialogs;
    batch::BatchPrinter other(dialogs, still, inFolder("Vanzer.mdb"));
    DesktopPrinter ours(files, still);
    ASSERT_TRUE(QDir(directory.path()).mkdir(QStringLiteral("altro")));
    files.answers << inFolder("viaggio.pdf");
    dialogs.enqueue(inFolder("altro/viaggio.pdf"));
    for (Printer* const one : {static_cast<Printer*>(&ours), static_cast<Printer*>(&other)}) {
        one->choose(QStringLiteral("PDF"));
        Foglio sheet(*one);
        sheet.imposta();
        sheet.StampaTesto(QStringLiteral("Località: Ålesund, Κέρκυρα"), 30, 10, 60, {.grassetto = true});
        sheet.StampaTesto(QStringLiteral("un testo che nel suo posto entra stretto"), 40, 10, 40,
                          {.posizione = Posizione::Centro});
        sheet.riempie(verdeChiaro);
        sheet.riquadro(10, 50, 60, 60);
        sheet.immagine(Immagine::Logo, 70, 50, 18);
        sheet.nuovaPagina();
        sheet.linea(10, 10, 200, 10);
        EXPECT_TRUE(one->endDoc());
    }
    EXPECT_FALSE(contents(inFolder("viaggio.pdf")).isEmpty());
    EXPECT_EQ(contents(inFolder("viaggio.pdf")), contents(inFolder("altro/viaggio.pdf")));
}

TEST_F(Printing, TheFontsFitTheirColumnsAndMissingOnesAreTold) {
    printer.setFontName(QStringLiteral("Agency FB"));
    printer.setFontSize(9);
    const double width = printer.textWidth(QStringLiteral("San Giovanni Rotondo"));
    const double height = printer.textHeight(QStringLiteral("x"));
    EXPECT_LT(printer.textWidth(QStringLiteral("28/12")) + 1, 8) << "a date fits its column of 8 mm unshrunk";
    EXPECT_LT(height, 4.5) << "a line fits a row";
    printer.setBold(true);
    EXPECT_GT(printer.textWidth(QStringLiteral("San Giovanni Rotondo")), width);
    printer.setFontName(QStringLiteral("Carattere che non c'è"));
    EXPECT_NE(printer.fontName(), QStringLiteral("Carattere che non c'è"));
    EXPECT_GT(printer.textWidth(QStringLiteral("x")), 0);
}

TEST_F(Printing, ThePdfAsksForItsFileOnceAndACancelDropsTheDocument) {
    EXPECT_EQ(printer.names().last(), QStringLiteral("PDF"));
    printer.choose(QStringLiteral("Stampante che non c'è"));
    EXPECT_EQ(printer.current(), QStringLiteral("PDF"));
    const struct {
        const char* answer;
        const char* file;
        int pages;
    } cases[] = {
        {"viaggio.pdf", "viaggio.pdf", 3}, {"Capo Nord 2.0", "Capo Nord 2.0.pdf", 1},
        {"GUIDA.PDF", "GUIDA.PDF", 2},     {"", nullptr, 2},
        {"viaggio.pdf", "viaggio.pdf", 1},
    };
    QStringList expected{QStringLiteral("settings")};
    for (const auto& c : cases) {
        files.filters.clear();
        files.answers << (*c.answer == '\0' ? QString() : inFolder(c.answer));
        drawPages(c.pages);
        EXPECT_EQ(printer.page(), c.pages);
        EXPECT_EQ(files.filters, QStringList(QStringLiteral("PDF (*.pdf)|*.pdf")));
        printer.newPage(); // an end right behind a new page leaves no blank sheet
        printer.endDoc();
        EXPECT_EQ(printer.page(), 0);
        printer.endDoc();
        if (c.file == nullptr)
            continue;
        EXPECT_EQ(pageCount(inFolder(c.file)), c.pages) << c.file;
        expected << QString::fromUtf8(c.file);
    }
    expected.removeDuplicates();
    const QStringList found = QDir(directory.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    for (const QString& name : found)
        EXPECT_TRUE(expected.contains(name)) << "left behind: " << name.toStdString();
}

TEST_F(Printing, AFileThatCannotBeWrittenIsToldAndTheOlderOneStays) {
    const QByteArray older = "quello di prima";
    const QString pdf = inFolder("vecchio.pdf");
    {
        QFile file(pdf);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(older);
    }
    for (const QString& folder : {QStringLiteral("cartella.pdf"), QStringLiteral("Copie")})
        ASSERT_TRUE(QDir(directory.path()).mkdir(folder));
    const auto failure = [this](const std::function<void()>& drawing) -> QString {
        try {
            drawing();
        } catch (const PrinterError& error) {
            EXPECT_EQ(printer.page(), 0) << "the document is dropped";
            return error.testo;
        }
        return {};
    };
    for (const char* path : {"non c'è/a.pdf", "vecchio.pdf/a.pdf", "cartella.pdf", "Copie/a.pdf"}) {
        files.answers << inFolder(path);
        const QString text = failure([this] { printer.text({20, 20}, QStringLiteral("x")); });
        EXPECT_TRUE(text.contains(QDir::toNativeSeparators(inFolder(path)))) << path << ": " << text.toStdString();
    }
    // The disk fills up while pages are written, and at the very end.
    for (const auto& [pages, room] : {std::pair{400, 100'000}, std::pair{1, 0}}) {
        files.answers << pdf;
        const FullDisk full(static_cast<rlim_t>(room));
        const QString text = failure([this, pages = pages] {
            drawPages(pages);
            printer.endDoc();
        });
        EXPECT_TRUE(text.contains(pdf) && text.contains(QStringLiteral("disco"))) << text.toStdString();
        EXPECT_EQ(contents(pdf), older);
    }
    files.answers << pdf;
    drawPages(2);
    printer.endDoc();
    EXPECT_EQ(pageCount(pdf), 2) << "a new document can be begun";
    EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files | QDir::Hidden), QStringList(QStringLiteral("vecchio.pdf")));
}

TEST_F(Printing, ThePreviewIsHadAndLeft) {
    open();
    form().frmframe(23).setVisible(true);
    window().binder().flush();
    EXPECT_FALSE(find<PreviewCheck>("anteprima")->isChecked());
    letter('p');
    EXPECT_TRUE(find<PreviewCheck>("anteprima")->isChecked());
    open();
    seeAllFrames();
    EXPECT_TRUE(find<PreviewCheck>("anteprima")->isChecked()) << "remembered";

    const QString pdf = inFolder("anteprima.pdf");
    const struct {
        std::vector<QKeyCombination> keys;
        const char* lastPage;
        bool sent;
    } cases[] = {
        {{Qt::Key_Escape}, "Pagina 1 di 3", false},
        {{Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_End, Qt::Key_PageDown, Qt::ALT | Qt::Key_R},
         "Pagina 3 di 3",
         false},
        {{Qt::Key_PageDown, Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Return}, "Pagina 2 di 3", true},
        {{Qt::ALT | Qt::Key_S}, "Pagina 1 di 3", true},
    };
    for (const auto& c : cases) {
        QFile::remove(pdf);
        files.answers << pdf;
        drawPages(3);
        PreviewKeys keys(c.keys);
        printer.endDoc();
        EXPECT_EQ(keys.said.value(keys.said.size() - 1).toStdString(), c.lastPage);
        EXPECT_EQ(printer.page(), 0);
        EXPECT_EQ(QFile::exists(pdf), c.sent);
        if (c.sent) {
            EXPECT_EQ(pageCount(pdf), 3);
        }
    }
    letter('p'); // of a frame that is not open
    EXPECT_TRUE(previewWanted());
}

TEST_F(Printing, TheFramesAreWorkedByKeyboard) {
    open();
    form().frmframe(18).setVisible(true);
    window().binder().flush();
    letter('d');
    EXPECT_TRUE(form().chkVociFrontespizio(1).value());

    find("chkModuli")->setFocus();
    form().lstStampanti.setEntries({QStringLiteral("Ufficio"), QStringLiteral("Casa"), QStringLiteral("PDF")});
    form().frmframe(23).setVisible(true);
    window().binder().flush();
    auto* const list = find<QListView>("lstStampanti");
    EXPECT_FALSE(list->currentIndex().isValid()) << "nothing is chosen beforehand";
    EXPECT_TRUE(form().lstStampanti.text().isEmpty());
    for (const char* name : {"Casa", "PDF"}) {
        key(Qt::Key_Down);
        EXPECT_EQ(form().lstStampanti.text().toStdString(), name);
    }
    list->setFocus();
    bool printed = false;
    form().cmdSelStampante(0).onClick = [&printed] { printed = true; };
    letter('s');
    EXPECT_TRUE(printed) << "of two buttons with one letter the one of the frame at hand";
    form().frmframe(23).setVisible(false);
    form().lstStampanti.clear();
    window().binder().flush();
    EXPECT_EQ(focusName().toStdString(), "chkModuli") << "the focus goes back";
    form().lstStampanti.setEntries({QStringLiteral("PDF")});
    form().frmframe(23).setVisible(true);
    window().binder().flush();
    EXPECT_FALSE(list->currentIndex().isValid()) << "nor the next time";
}

TEST_F(Printing, TheGuidesOptionsFollowTheGuide) {
    storeTrip(2);
    open();
    letter('g');
    form().frmframe(25).setVisible(true);
    window().binder().flush();
    EXPECT_EQ(focusName().toStdString(), "optGuidaListaStampa_1");
    letter('t');
    EXPECT_TRUE(form().optGuidaListaStampa(0).value());
    letter('g');
    EXPECT_TRUE(form().optGuidaDettaglioStampa(1).value());
    letter('l');
    EXPECT_TRUE(form().optGuidaDettaglioStampa(0).value()) << "though a label beside the frame has the letter too";
    const auto shown = [this](bool on, bool visible) {
        form().frmframe(24).setEnabled(on);
        form().frmframe(24).setVisible(visible);
        window().binder().flush();
        return std::pair(find("cmdStampaGuida_0")->isEnabled(), isSeen("frmframe_25"));
    };
    EXPECT_EQ(shown(false, true), std::pair(false, true));
    EXPECT_FALSE(shown(true, false).second);
    EXPECT_EQ(shown(true, true), std::pair(true, true));
}

} // namespace
} // namespace vanzer::desktop
