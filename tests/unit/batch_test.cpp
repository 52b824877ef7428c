#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "batch/interpreter.h"
#include "batch/line.h"
#include "batch/pdf_file.h"
#include "batch/queue_ports.h"
#include "batch/recording_printer.h"
#include "batch/state_view.h"
#include "batch/usage.h"

namespace vanzer::batch {
namespace {

QByteArray compact(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

TEST(BatchLine, SplitsAndUnescapes) {
    const struct {
        const char* line;
        const char* word;
        const char* rest;
    } lines[] = {
        {"start", "start", ""},
        {"set txtKm ", "set", "txtKm "},
        {"set txtKm  12 ", "set", "txtKm  12 "},
        {"  get txtKm", "get", "txtKm"},
        {" ", "", ""},
    };
    for (const auto& l : lines) {
        const Line line = split(QString::fromUtf8(l.line));
        EXPECT_EQ(line.word.toStdString(), l.word) << l.line;
        EXPECT_EQ(line.rest.toStdString(), l.rest) << l.line;
    }
    const struct {
        const char* written;
        const char* meant;
    } texts[] = {
        {R"(a\nb\tc\\d)", "a\nb\tc\\d"}, {R"(\\n)", "\\n"}, {R"(\x\)", "\\x\\"}, {R"(\\\n)", "\\\n"}, {"", ""}};
    for (const auto& t : texts)
        EXPECT_EQ(unescaped(QString::fromUtf8(t.written)).toStdString(), t.meant) << t.written;
}

TEST(BatchLine, SkipsCommentsAndEmptyLines) {
    for (const char* line : {"", "  ", "# start", "#"})
        EXPECT_TRUE(saysNothing(QString::fromUtf8(line))) << line;
    for (const char* line : {"start", " # start"})
        EXPECT_FALSE(saysNothing(QString::fromUtf8(line))) << line;
}

TEST(BatchBoxes, AnswerFromTheQueueThenByTheButtons) {
    QueuedBoxes boxes;
    boxes.enqueue(rispostaSi);
    EXPECT_EQ(boxes.show({.text = QStringLiteral("a\r\nb"),
                          .title = QStringLiteral("t"),
                          .buttons = Pulsanti::SiNo,
                          .icon = Icona::Avviso}),
              rispostaSi);
    EXPECT_EQ(boxes.show({.text = {}, .buttons = Pulsanti::Ok}), rispostaOk);
    EXPECT_EQ(boxes.show({.text = {}, .buttons = Pulsanti::SiNo}), rispostaNo);
    EXPECT_EQ(boxes.show({.text = {}, .buttons = Pulsanti::SiNoAnnulla, .icon = Icona::Informazione}), rispostaAnnulla);
    const QJsonArray shown = boxes.exchange({});
    ASSERT_EQ(shown.size(), 4);
    EXPECT_EQ(compact(shown[0].toObject()),
              R"({"answer":6,"buttons":"yesno","icon":"warning","text":"a\nb","title":"t"})");
    EXPECT_EQ(compact(shown[3].toObject()),
              R"({"answer":2,"buttons":"yesnocancel","icon":"information","text":"","title":""})");
    EXPECT_TRUE(boxes.exchange({}).isEmpty());
}

TEST(BatchYield, LetsAVisitorInOnceAndNotIntoItself) {
    VisitedYield events;
    int asked = 0;
    events.expect([&] {
        events.yield();
        return ++asked == 2;
    });
    for (int i = 0; i < 5; ++i)
        events.yield();
    EXPECT_EQ(asked, 2);
    events.expect([&] { return ++asked > 0; });
    events.expect({});
    events.yield();
    EXPECT_EQ(asked, 2);
}

class BatchPrinter : public testing::Test {
  protected:
    QueuedDialogs dialogs;
    RecordingPrinter printer{dialogs};
};

TEST_F(BatchPrinter, MeasuresWithoutAFont) {
    const struct {
        double size;
        bool bold;
        const char* text;
        double width;
    } cases[] = {{10, false, "Roma", 7.6}, {10, true, "Roma", 8.4}, {6.5, false, "è€😀", 3.705}, {48, true, "", 0}};
    for (const auto& c : cases) {
        printer.setFontSize(c.size);
        printer.setBold(c.bold);
        EXPECT_NEAR(printer.textWidth(QString::fromUtf8(c.text)), c.width, 1e-9) << c.text;
        EXPECT_NEAR(printer.textHeight({}), 0.42 * c.size, 1e-9) << c.text;
    }
    printer.setFontName(QStringLiteral("Agency FB"));
    EXPECT_EQ(printer.fontName(), QStringLiteral("Times new roman"));
}

TEST_F(BatchPrinter, RecordsWhatIsDrawn) {
    EXPECT_EQ(printer.page(), 0);
    printer.setFontSize(6.504);
    printer.setItalic(true);
    printer.text({1.004, -0.001}, QStringLiteral("Tèsto"));
    printer.line({1, 2}, {3.456, 4}, 1);
    printer.newPage();
    EXPECT_EQ(printer.page(), 2);
    printer.box({1, 2}, {3, 4}, 3, 0x00FF0AU);
    printer.box({1, 2}, {3, 4}, 2, {});
    printer.picture(Immagine::LogoSito, {22, 20}, {15, 15});
    printer.newPage();
    printer.endDoc();
    printer.endDoc();
    EXPECT_EQ(printer.page(), 0);
    EXPECT_EQ(
        compact(printer.take()).toStdString(),
        R"({"documents":1,"pages":[[)"
        R"({"bold":false,"font":"Times new roman","italic":true,"op":"text","size":6.5,"text":"Tèsto","x":1,"y":0},)"
        R"({"op":"line","width":1,"x1":1,"x2":3.46,"y1":2,"y2":4}],[)"
        R"({"fill":"#00ff0a","op":"box","width":3,"x1":1,"x2":3,"y1":2,"y2":4},)"
        R"({"fill":null,"op":"box","width":2,"x1":1,"x2":3,"y1":2,"y2":4},)"
        R"({"h":15,"op":"picture","w":15,"x":22,"y":20}],[]],"printer":"Registro"})");
    EXPECT_EQ(compact(printer.take()), R"({"documents":0,"pages":[],"printer":"Registro"})");
}

TEST_F(BatchPrinter, GoesOnWithAPageThatWasTakenHalfDrawn) {
    printer.line({1, 1}, {2, 2}, 1);
    EXPECT_EQ(printer.take()["pages"].toArray().size(), 1);
    printer.line({1, 1}, {2, 2}, 1);
    EXPECT_EQ(printer.page(), 1);
    printer.endDoc();
    const QJsonObject rest = printer.take();
    EXPECT_EQ(rest["pages"].toArray().size(), 1);
    EXPECT_EQ(rest["documents"].toInt(), 1);
}

TEST_F(BatchPrinter, WritesPdfWhereTheUserSays) {
    const QTemporaryDir scratch;
    const QString path = scratch.filePath(QStringLiteral("viaggio.pdf"));
    printer.choose(QStringLiteral("pdf"));
    ASSERT_EQ(printer.current(), QStringLiteral("PDF"));
    const auto print = [this] {
        printer.text({10, 10}, QStringLiteral("(Città)"));
        printer.newPage();
        printer.endDoc();
    };
    print(); // nothing queued: the dialog is cancelled
    EXPECT_FALSE(QFile::exists(path));
    dialogs.enqueue(path);
    print();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.startsWith("%PDF-1.4") && bytes.endsWith("%%EOF\n"));
    EXPECT_TRUE(bytes.contains("/Count 2>>"));
    EXPECT_TRUE(bytes.contains("(\\(Citt\xE0\\)) Tj"));
    const qsizetype object4 = bytes.mid(bytes.indexOf("0000000000 65535 f") + qsizetype{20} * 4, 10).toLongLong();
    EXPECT_EQ(bytes.mid(object4, 7), "4 0 obj");

    const QString nowhere = scratch.filePath(QStringLiteral("nowhere/viaggio.pdf"));
    dialogs.enqueue(nowhere);
    EXPECT_THROW(print(), PrinterError);
    printer.reset();
    EXPECT_EQ(compact(printer.take()), R"({"documents":0,"pages":[],"printer":"Registro"})");
}

TEST_F(BatchPrinter, DrawsNoPdfInPlaceOfTheArchive) {
    const QTemporaryDir scratch;
    const QString archive = scratch.filePath(QStringLiteral("Vanzer.mdb"));
    QFile file(archive);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("legs") == 4);
    file.close();
    ASSERT_TRUE(QFile::link(archive, scratch.filePath(QStringLiteral("giro.pdf"))));
    RecordingPrinter careful(dialogs, archive);
    careful.choose(QStringLiteral("PDF"));
    for (const char* name : {"Vanzer.mdb", "./Vanzer.mdb", "giro.pdf"}) {
        dialogs.enqueue(scratch.filePath(QString::fromLatin1(name)));
        EXPECT_THROW(careful.text({10, 10}, QStringLiteral("Roma")), PrinterError) << name;
        EXPECT_TRUE(careful.endDoc());
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "legs");
}

TEST(BatchState, GivesSinglesInShortestForm) {
    StatoViaggio state;
    state.Coefficiente = 1.999997F;
    state.GiulianoInizio = 731416;
    const QByteArray vars = compact(variables(state));
    EXPECT_TRUE(vars.contains(R"("Coefficiente":1.999997,)")) << vars.toStdString();
    EXPECT_TRUE(vars.contains(R"("GiulianoInizio":731416,)")) << vars.toStdString();
    EXPECT_TRUE(vars.contains(R"("ModoGuida":false,)")) << vars.toStdString();
}

TEST(BatchState, LeavesOutEmptyEndsOfGrids) {
    Grid grid(QStringLiteral("mfgTab"), -1, nullptr, 5, 4);
    grid.setCell(0, 1, QStringLiteral("Tappa"));
    grid.setCell(2, 2, QStringLiteral(" "));
    EXPECT_EQ(compact(gridState(grid)), R"({"cells":[["","Tappa"],[],["",""," "]],"col":1,"cols":4,"colsel":1,)"
                                        R"("row":1,"rows":5,"rowsel":1,"toprow":1})");
}

TEST(BatchInterpreter, KnowsAllThatTheHelpLists) {
    const QTemporaryDir scratch;
    Interpreter interpreter({.directory = scratch.path(), .decimalMark = u'.', .versione = {}});
    const QString unknown = QStringLiteral("unknown command");
    EXPECT_EQ(interpreter.run(QStringLiteral("launch"))->value(u"error").toString(), unknown);
    for (const Usage& usage : commandUsage()) {
        const QString word = usage.command.toString().section(u' ', 0, 0);
        if (word == u"stop")
            continue;
        EXPECT_NE(interpreter.run(word)->value(u"error").toString(), unknown) << word.toStdString();
        EXPECT_TRUE(helpText().contains(usage.command)) << word.toStdString();
    }
}

TEST(BatchInterpreter, AnswersWithoutAWindow) {
    const QTemporaryDir scratch;
    QFile text(scratch.filePath(QStringLiteral("note.txt")));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly) && text.write("citt\xE0\r\n\r\nfine") > 0);
    text.close();
    Interpreter interpreter({.directory = scratch.path(), .decimalMark = u'.', .versione = {}});
    const QString missing = QStringLiteral("[Errno 2] No such file or directory: '%1/a'").arg(scratch.path());
    const struct {
        const char* line;
        QJsonObject answer;
    } cases[] = {
        {"vars", {{"error", "no window"}}},
        {"click cmdNuovo", {{"error", "no window"}}},
        {"leap", {{"error", "unknown command"}}},
        {"answer", {{"error", "bad arguments"}}},
        {"answer 6 3", {{"error", "bad arguments"}}},
        {"answer 6 7", {}},
        {"file", {{"error", "bad arguments"}}},
        {"during", {{"error", "bad arguments"}}},
        {"during vars", {}},
        {"now 2003-07-05T08:20", {}},
        {"now 2003-02-30T08:20", {{"error", "bad arguments"}}},
        {"cat a", {{"error", missing}}},
        {"cat note.txt", {{"lines", QJsonArray{QStringLiteral("città"), "", "fine"}}}},
        {"pages", {{"printer", "Registro"}, {"pages", QJsonArray()}, {"documents", 0}}},
    };
    for (const auto& c : cases) {
        QJsonObject expected = c.answer;
        expected.insert(u"cmd", QString::fromUtf8(c.line));
        EXPECT_EQ(compact(interpreter.run(QString::fromUtf8(c.line)).value()).toStdString(),
                  compact(expected).toStdString());
    }
    EXPECT_FALSE(interpreter.run(QStringLiteral("# stop")).has_value());
    EXPECT_TRUE(interpreter.run(QStringLiteral("table MeteVanzer"))->contains(u"error"));
    EXPECT_FALSE(QFile::exists(scratch.filePath(QStringLiteral("Vanzer.mdb"))));
    EXPECT_FALSE(interpreter.finished());
    EXPECT_TRUE(interpreter.run(QStringLiteral("stop")).has_value());
    EXPECT_TRUE(interpreter.finished());
}

} // namespace
} // namespace vanzer::batch
