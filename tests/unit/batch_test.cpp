#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "batch/interpreter.h"
#include "batch/line.h"
#include "batch/queue_ports.h"
#include "batch/recording_printer.h"
#include "batch/usage.h"

namespace vanzer::batch {
namespace {

TEST(BatchLine, SkipsCommentsAndEmptyLines) {
    for (const char* line : {"", "  ", "# start", "#"})
        EXPECT_TRUE(saysNothing(QString::fromUtf8(line))) << line;
    for (const char* line : {"start", " # start"})
        EXPECT_FALSE(saysNothing(QString::fromUtf8(line))) << line;
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

TEST_F(BatchPrinter, GoesOnWithAPageThatWasTakenHalfDrawn) {
    EXPECT_EQ(printer.fontName(), QStringLiteral("Times new roman"));
    printer.line({1, 1}, {2, 2}, 1);
    EXPECT_EQ(printer.take()["pages"].toArray().size(), 1);
    printer.line({1, 1}, {2, 2}, 1);
    EXPECT_EQ(printer.page(), 1);
    printer.endDoc();
    const QJsonObject rest = printer.take();
    EXPECT_EQ(rest["pages"].toArray().size(), 1);
    EXPECT_EQ(rest["documents"].toInt(), 1);
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
    EXPECT_FALSE(interpreter.finished());
    EXPECT_TRUE(interpreter.run(QStringLiteral("stop")).has_value());
    EXPECT_TRUE(interpreter.finished());
}

} // namespace
} // namespace vanzer::batch
