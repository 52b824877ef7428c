// SPDX-License-Identifier: MIT
#include "store_fixture.h"

#include "batch/batch_printer.h"
#include "batch/interpreter.h"
#include "batch/queue_ports.h"
#include "batch/usage.h"

namespace vanzer::batch {
namespace {

TEST(BatchPrinter, DrawsNoPdfInPlaceOfTheArchive) {
    const QTemporaryDir scratch;
    const QString archive = scratch.filePath(QStringLiteral("Vanzer.mdb"));
    store::write(archive, "legs");
    ASSERT_TRUE(QFile::link(archive, scratch.filePath(QStringLiteral("giro.pdf"))));
    QueuedDialogs dialogs;
    const SetClock clock;
    BatchPrinter careful(dialogs, clock, archive);
    careful.choose(QStringLiteral("PDF"));
    for (const char* name : {"Vanzer.mdb", "./Vanzer.mdb", "giro.pdf"}) {
        dialogs.enqueue(store::path(scratch, name));
        EXPECT_THROW(careful.text({10, 10}, QStringLiteral("Roma")), PrinterError) << name;
        EXPECT_TRUE(careful.endDoc());
    }
    EXPECT_EQ(store::contents(archive), "legs");
}

TEST(BatchInterpreter, KnowsAllThatTheHelpLists) {
    const QTemporaryDir scratch;
    Interpreter interpreter({.directory = scratch.path(), .decimalMark = u'.', .versione = {}});
    for (const Usage& usage : commandUsage()) {
        const QString word = usage.command.toString().section(u' ', 0, 0);
        EXPECT_TRUE(word == u"stop" || interpreter.run(word)->value(u"error").toString() != u"unknown command")
            << word.toStdString();
    }
}

} // namespace
} // namespace vanzer::batch
