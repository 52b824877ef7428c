// SPDX-License-Identifier: MIT
// What a user does by keyboard alone, and what the window shows.
#include <QAbstractScrollArea>
#include <QApplication>
#include <QScrollBar>
#include <QSignalSpy>

#include "desktop/table_view.h"
#include "desktop_fixture.h"
#include "guide/entries.h"

namespace vanzer::desktop {
namespace {

class ByKeyboard : public DesktopTest {
  protected:
    void openTrip(int legs) {
        storeTrip(legs);
        open();
    }
    /// The cells of a column in all rows that have text there, joined.
    [[nodiscard]] std::string cells(int column) {
        QStringList texts;
        for (int row = 1; row < form().mfgTab.rows(); ++row)
            texts << form().mfgTab.cell(row, column).trimmed();
        texts.removeAll(QString());
        return texts.join(u'|').toStdString();
    }
    /// Presses Esc once `holds` is true, inside the running command and while no box is open.
    void escapeOnce(const std::function<bool()>& holds) {
        once([holds] { return QApplication::activeModalWidget() == nullptr && holds(); },
             [this] { QTest::keyClick(&window(), Qt::Key_Escape); });
    }
};

/// From an empty archive to the trip's calendar.
TEST_F(ByKeyboard, AWholeTripIsPlanned) {
    open();
    story({{"", "+frmPrimiPassi"},
           {"<p>", "-frmPrimiPassi;@txtLocalita"},
           {"garda<Tab>italia[Return]<v>", "?"},
           {"<i>", "@txtTappa"},
           {"bologna<i>verona<Tab>a22<Tab>133<i>garda<Tab>sr249<Tab>35<i>", "@txtTappa;txtRiga=4;txtKmTot_4=168"},
           {"[Return]<Return>", "?;-frmframe_12"}, // nothing is typed: the default button asks whether to store
           {"<g><Down*2>", "+frmframe_24"},        // the guide, at the last place
           {"<@txtGDescr>rocca<Tab*2>01<s><Return>", "-frmframe_24"},
           {"<c>", "cmdCalcola=&Sblocca"},
           {"<p>", "@vistaLinea"},
           {"<Esc><s>", "-frmLinea"}});
    if (focusName() != "cmdStampa") // shared letter: it moves from one button to the next
        press("<s>");
    story({{"", "@cmdStampa"}, {"<Return>", "@chkTabella"}});
    boxes.expect(Qt::Key_Return);
    pressFor(inFolder("garda.ics"), "<l>");
    sees("?La viandoria è nel file");
    EXPECT_TRUE(contents(inFolder("garda.ics")).contains("SUMMARY:Rocca"));
    story({{"<Esc>", "-frmframe_18"}});
    EXPECT_NE(focusName(), "");
}

TEST_F(ByKeyboard, AScheduleIsLookedAtAndPrinted) {
    openTrip(12);
    story({{"", "/cmdLinea"}, {"<c>", "*cmdLinea"}, {"<p>", "@vistaLinea"}});
    const std::string first = textOf("giornoLinea");
    EXPECT_TRUE(first.starts_with(textOf("mfgTab:1:9") + ' ' + textOf("mfgTab:1:10"))) << first;
    auto* const picture = find<QAbstractScrollArea>("vistaLinea");
    EXPECT_EQ(picture->accessibleDescription().toStdString(), first);
    const double lines =
        static_cast<double>(picture->verticalScrollBar()->singleStep()) / picture->fontMetrics().height();
    EXPECT_TRUE(lines >= 2 && lines < 3) << "a day is as high as its names and hours need: " << lines;
    press("<End>");
    EXPECT_NE(textOf("giornoLinea"), first);
    press("<Home>");
    EXPECT_EQ(textOf("giornoLinea"), first);
    story({{"<Esc>", "-frmLinea"}, {"<p>", "+frmLinea"}});
    work("click cmdCalcola"); // shows the legs in the table again
    story({{"", "-frmLinea;/cmdLinea"},
           {"<s>", "@chkTabella"},
           {"<Space><s>", "+frmframe_23"},
           {"<Esc>", "-frmframe_23;+frmframe_18"},
           {"<Esc>", "-frmframe_18;*cmdCalcola"},
           {"<@cmdCalcola><Space><g><@cmdStampaGuidaCitta><Space>", "+frmframe_25"},
           {"<Esc>", "-frmframe_25"},
           {"<f><s><s><@lstStampanti><End>", "+frmframe_23"}}); // "PDF" is the last printer
    press("[Return][Return]");
    pressFor(inFolder("prova.pdf"), "<s>");
    sees("?Stampa Viandoria  completata...;?;-frmframe_18;cmdCalcola=&Sblocca");
    const QString text = output("pdftotext", {QStringLiteral("-layout"), inFolder("prova.pdf"), QStringLiteral("-")});
    for (const char* printed :
         {"PROVA", "ITALIA", "Pagina: 02", "Luogo 12", "Tempi tecnici giornalieri/Riposi/Visite:"})
        EXPECT_TRUE(text.contains(QLatin1StringView(printed))) << printed;
    EXPECT_EQ(text.count(u'\f'), 2) << "the cover and one page, no blank one";
    EXPECT_TRUE(contents(inFolder("prova.pdf")).contains("20260601"));
    EXPECT_TRUE(QFile::exists(inFolder("Vanztabl.txt")));
}

TEST_F(ByKeyboard, APrintIsStoppedByEsc) {
    storeTrip(300);
    open(everyStep);
    story({{"<s>", "@chkTabella"}, {"<Space><s>", "+frmframe_23"}, {"<@lstStampanti>", "@lstStampanti"}});
    escapeOnce([this] { return form().stato.StampaInCorso && form().stato.PercentualeCorrente >= 3; });
    press("<End>[Return][Return][Return]");
    pressFor(inFolder("prova.pdf"), "<s>");
    sees("?Vuoi interrompere la stampa?;?Stampa interrotta!;?");
    EXPECT_FALSE(QFile::exists(inFolder("prova.pdf")));
}

TEST_F(ByKeyboard, ACalculationIsStoppedOnceAndFinishedOnce) {
    storeTrip(12);
    open(everyStep);
    for (const bool byClick : {false, true}) {
        work("set cmbGiorni 900"); // runs all tests; a stop loads the stored trip again
        once([this] { return textOf("cmdEsce") == "&Stop"; },
             [this, byClick] {
                 EXPECT_TRUE(isSeen("txtPerc")) << "no progress line during the calculation";
                 if (byClick)
                     QTest::mouseClick(find("cmdEsce"), Qt::LeftButton);
                 else
                     EXPECT_FALSE(window().close());
             });
        story({{"[Return]<c>",
                "?Vuoi interrompere l'elaborazione?;cmdEsce=&Esce;cmdCalcola=&Calcola;mfgTab:12:1=LUOGO 12"}});
    }
    work("set cmbGiorni 900");
    QSignalSpy grown(find<TableView>("mfgTab")->model(), &QAbstractItemModel::modelReset);
    press("<c>");
    EXPECT_GT(grown.size(), 2) << "the table was not seen growing";
    EXPECT_EQ(spokenName(*find("cmdCalcola")), QStringLiteral("Sblocca"));
    story({{"", "?Elaborazione impossibile! (tentativi effettuati;@cmdCalcola;-txtPerc;cmdCalcola=&Sblocca"},
           {"<Return>", "cmdCalcola=&Calcola;mfgTab:12:1=LUOGO 12"}});
}

TEST_F(ByKeyboard, TableKeysMoveTheRow) {
    openTrip(40);
    press("<i><@mfgTab>");
    story({{"<Down*2>", "@mfgTab;txtRiga=3"},
           {"<Up>", "@mfgTab;txtRiga=2"},
           {"<PgDown>", "txtRiga=20"},
           {"<PgDown>", "txtRiga=38"},
           {"<PgDown>", "txtRiga=41"},
           {"<PgUp>", "@mfgTab;txtRiga=23;txtTappa=LUOGO 23"}});
    const auto* const table = find<TableView>("mfgTab");
    EXPECT_EQ(table->currentIndex().row(), 22);
    const QRect row = table->visualRect(table->currentIndex());
    EXPECT_TRUE(table->viewport()->rect().contains(row));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, row.center() + QPoint(0, row.height()));
    sees("txtTappa=LUOGO 24");
}

TEST_F(ByKeyboard, SearchListsArePickedFromAndLeft) {
    openTrip(12);
    story({{"<r>", "@cmbRicerca;/cmdItinerario"},
           {"<Esc>", "-cmbRicerca;*cmdItinerario"},
           {"<r><Return>", "*cmdItinerario;txtCodice=000001"},
           {"<i><e>", "@cmbRicercaTappa;/mfgTab"},
           {"<Esc>", "*mfgTab;+frmframe_12"},
           {"<e><Down><Return>", "@txtTappa;txtTappa=LUOGO 10"}}); // sorted by name
    open();
    story({{"<g><e>", "@cmbRicercaTappa;/frmframe_24"},
           {"<Esc>", "@txtGDescr;*frmframe_24"},
           {"<e>", "@cmbRicercaTappa;/frmframe_24"},
           {"<Return>", "@txtGDescr;*frmframe_24;txtGCitta=Luogo 1"}});
}

TEST_F(ByKeyboard, AStretchGetsItsRoadTypeAndIsSavedOrGivenUp) {
    openTrip(8);
    ASSERT_EQ(cells(4), "A|A|A|A|A|A|A");
    story({{"<t>", "@cmdTappaSEl_0;/cmdTappaSEl_2"}});
    const auto* const table = find<TableView>("mfgTab");
    EXPECT_FALSE(find("frmframe_1")->geometry().intersects({table->mapTo(&window(), QPoint()), table->size()}));
    story({{"<@mfgTab><Down*2><@cmdTappaSEl_0><Space><@mfgTab><Down*2><@cmdTappaSEl_1><Space>",
            "txttappasel_0=0003 A LUOGO 3;txttappasel_2=3"},
           {"<l><a>", "txttappasel_1=0006 A LUOGO 6"},
           {"<s><p><a>[Esc]<f>", "?Vuoi salvare le modifiche apportate?;-frmframe_1"}});
    EXPECT_EQ(cells(4), "A|L|L|L|A|A|A");
}

TEST_F(ByKeyboard, AStretchIsCopiedBackwardsBehindTheCurrentLeg) {
    openTrip(8);
    story({{"<i><@cmdDuplica><Space>", "@mfgCopia;-frmframe_19"}, {"<Return>", "+frmframe_19;/frmframe_12"}});
    EXPECT_TRUE(find("frmframe_19")->geometry().contains(find("frmframe_12")->geometry()));
    EXPECT_FALSE(find("frmframe_19")->geometry().intersects(find("frmframe_17")->geometry()));
    story({{"<@mfgCopia><Down*3><@cmdAssegna_0><Space><@mfgCopia><Up*2><@cmdAssegna_1><Space>",
            "txtInsLoc_0=LUOGO 4;txtInsLoc_1=LUOGO 2"},
           {"[Return]<p>", "?;-frmframe_17;*frmframe_12"}});
    EXPECT_EQ(QString::fromStdString(cells(1)).remove(QStringLiteral("LUOGO ")).toStdString(), "1|4|3|2|2|3|4|5|6|7|8");
}

TEST_F(ByKeyboard, NotesOfTheGuideAreTypedOneAfterTheOther) {
    openTrip(2);
    // A message that was shown once isn't repeated for later notes. A row key stores the third note and moves past all
    // of them.
    story({{"<g>", "@txtGDescr"},
           {"un museo<Tab>", "@cmbGTipo"},
           {"<Down><Tab>01<Tab>30<s>", "@txtGDescr;txtGDescr="},
           {"il duomo<s>area di sosta<Down*4>", "@txtGGruppo"},
           {"<Tab>un museo<s>il duomo<s>area di sosta<Up>", ""},
           {"<Return>", "-frmframe_24"},
           {"<g>", "+frmframe_24"}});
    EXPECT_EQ(cells(guidaLuogo), "LUOGO 1|Luogo 1|Luogo 1|Luogo 1|LUOGO 2|Luogo 2|Luogo 2|Luogo 2");
    EXPECT_EQ(cells(guidaDescrizione), "Area di sosta|Il duomo|Un museo|Area di sosta|Il duomo|Un museo");
    EXPECT_EQ(cells(guidaTempo), "01:30|01:30|01:30|01:30|01:30|01:30");
    EXPECT_EQ(cells(guidaTipo), "Da vedere|Da vedere|Da vedere|Da vedere|Da vedere|Da vedere");
}

TEST_F(ByKeyboard, GroupsAndShortFormsOfTheGuideAreTyped) {
    openTrip(2);
    story({{"<g><Backtab>", "@txtGGruppo"},
           {"b_-à a", "txtGGruppo=B-A"},
           {"<Tab>diars", "txtGDescr=Diari di bordo;cmbGTipo=Diari bordo"},
           {"<Tab>gpl<s>", "mfgTab:2:3=B-A;mfgTab:2:4=Diari di bordo;mfgTab:2:6=Gpl"},
           // The description stays when a group is chosen, and typing replaces it.
           {"stazione", "txtGDescr=stazione"},
           {"<Ctrl+A><Del><f><g>", "mfgTab:2:3=A-B"},
           {"<Down><Up><Down>", "txtGGruppo=A-B"},
           {"z<Up>", "mfgTab:2:3=Z"},
           {"<t>", "@cmbGTipo"}, // this letter also belongs to a label, so it only moves the focus
           {"<t>", "@cmdStampaGuidaCitta"}});
}

TEST_F(ByKeyboard, ATripGoesOutAndComesInUnderAnotherName) {
    openTrip(5);
    const QString path = inFolder("prova.iei");
    writeFile(path, {}); // asks once about an existing file; Enter means no
    story({{"<x>", "@cmdImportExport_0"},
           {"<e>", "@mfgImExp_0;/cmdImExp_0"},
           {"<Return>", "mfgImExp(1):1:1=PROVA;cmdTutto_1=<--- Tutti [1]"}});
    pressFor(path, "<@cmdImExp_0>[Return]<Return>");
    EXPECT_EQ(boxes.take().title, QStringLiteral("File %1 esistente").arg(path));
    EXPECT_TRUE(contents(path).isEmpty() && boxes.none());
    pressFor(path, "<@cmdImExp_0>[S][Return][Return]<Return>");
    story({{"", "?;?;?Le mète esportate si trovano sul file ;+frmframe_22"}});
    writeFile(path, contents(path).replace("PROVA", "ALTRA"));
    story({{"<Esc>", "-frmframe_22"}, {"<x>", ""}});
    pressFor(path, "<i>");
    story({{"", "@mfgImExp_1;mfgImExp(1):1:1=ALTRA"},
           {"<Space>[Return][Return]<@cmdImExp_0><Space>",
            "?;?Sono stati inseriti:\n\n1 mète/itinerari;-frmframe_22;*cmdExport"}});
    EXPECT_EQ(records("Itinerari").size(), 10U);
}

TEST_F(ByKeyboard, TheMarkOfAListMovesWithTheArrowsAndStaysInIt) {
    openTrip(2);
    story({{"<n>aosta<Tab>italia[Return]<v>", "?"}, {"<n>zara<Tab>italia[Return]<v>", "?"}, {"<x><e>", "@mfgImExp_0"}});
    const std::pair<const char*, int> steps[] = {{"<Down>", 2}, {"<Up*2>", 1}, {"<End>", 14}, {"<Down>", 14},
                                                 {"<Home>", 1}, {"<Down>", 2}, {"<PgUp>", 1}, {"<Down>", 2}};
    for (const auto& [keys, row] : steps) {
        press(keys);
        EXPECT_EQ(form().mfgImExp(0).row(), row) << keys;
    }
    story({{"<Space>", "mfgImExp(1):1:1=PROVA"},
           {"<Return>", "mfgImExp(1):2:1=ZARA;@mfgImExp_0"},
           {"<Return>", "mfgImExp(0):1:1=;mfgImExp(1):1:1=AOSTA;/cmdTutto_0"}});
}

TEST_F(ByKeyboard, AnImportIsStoppedByEscAndLeavesNothing) {
    openTrip(200);
    const QString path = inFolder("prova.iei");
    press("<x><e><Return><@cmdImExp_0>[Return][Return]");
    pressFor(path, "<Return>");
    boxes.forget();
    forgetArchive();
    open(everyStep);
    story({{"<n>aosta<Tab>italia[Return]<v>", "?"}, {"<x>", ""}});
    pressFor(path, "<i>");
    press("<Return><@cmdImExp_0>");
    escapeOnce([this] {
        return textOf("cmdEsce") == "&Stop" && form().stato.LavoroInCorso &&
               form().lblElaborazione.caption() == QStringLiteral("Importazione Itinerari");
    });
    story({{"[Return][Return][Return]<Return>",
            "?;?Vuoi interrompere l'elaborazione?;?Import interrotto!\n\nNon è stato inserito nulla.;"
            "txtLocalita=AOSTA;cmdEsce=&Esce"}});
    EXPECT_EQ(records("MeteVanzer").size(), 1U);
    EXPECT_TRUE(records("Itinerari").empty());
}

} // namespace
} // namespace vanzer::desktop
