#include "store_fixture.h"

#include "batch/batch_printer.h"
#include "batch/queue_ports.h"

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

} // namespace
} // namespace vanzer::batch
