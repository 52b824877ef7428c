// SPDX-License-Identifier: MIT
// The time from the start of the program to its first idle moment, on a big archive that already has its daily copy.

#include <stdexcept>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "batch/session.h"
#include "big_archive.h"
#include "measure.h"
#include "store/daily_copy.h"

namespace vanzer::bench {

namespace {

Timed program(const char* name, const QStringList& arguments) {
    const QString path = QCoreApplication::applicationDirPath() + u'/' + QLatin1StringView(name);
    return timed([path, arguments] {
        QProcess process;
        process.setStandardOutputFile(QProcess::nullDevice());
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(path, arguments);
        process.waitForFinished();
        if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
            throw std::runtime_error("a program that was to be timed failed");
    });
}

/// A folder with a copy of the big archive.
class Folder {
  public:
    Folder() {
        QFile::copy(bigArchive() + QStringLiteral("/Vanzer.mdb"), file("Vanzer.mdb"));
        QFile script(file("start.txt"));
        if (script.open(QIODevice::WriteOnly))
            script.write("start\nstop\n");
        script.close();
        batch::Session({.directory = path(), .decimalMark = u'.', .versione = {}}).start();
    }

    [[nodiscard]] QString path() const { return directory_.path(); }
    [[nodiscard]] QString file(const char* name) const { return directory_.filePath(QLatin1StringView(name)); }

  private:
    QTemporaryDir directory_;
};

} // namespace

void startOfBatch(benchmark::State& state) {
    const Folder folder;
    const QStringList script{QStringLiteral("--dir"), folder.path(), QStringLiteral("--script"),
                             folder.file("start.txt")};
    measure(state,
            {.work = "start of `vanzer-batch` to idle, big archive",
             .against = "a Qt program with the same libraries that reads the current trip by bare calls",
             .atMost = 1.5,
             .inProcess = false},
            program("vanzer-batch", script), program("least_batch", {folder.path()}));
}
BENCHMARK(startOfBatch)->Iterations(1)->UseManualTime();

void startOfWindow(benchmark::State& state) {
    const Folder folder;
    measure(state,
            {.work = "start of the window to idle, big archive",
             .against = "the same and a Qt window with as many of Qt's own widgets",
             .atMost = 1.4,
             .inProcess = false},
            program("vanzer_in_window", {folder.path()}), program("least_window", {folder.path()}));
}
BENCHMARK(startOfWindow)->Iterations(1)->UseManualTime();

/// The first start of a day, which copies the archive.
void copyOfTheDay(benchmark::State& state) {
    const Folder folder;
    const auto archive = store::Database::open(folder.file("Vanzer.mdb"));
    const QString plainCopy = folder.file("copia.mdb");
    const auto ours = [&] {
        QDir(folder.file("Copie")).removeRecursively();
        return seconds([&] { static_cast<void>(store::makeDailyCopy(*archive, QDate(2026, 5, 4), {})); });
    };
    measure(state, {.work = "copy of the day, big archive, checked", .against = "the file copied by the system"}, ours,
            [&] {
                QFile::remove(plainCopy);
                return seconds([&] { QFile::copy(folder.file("Vanzer.mdb"), plainCopy); });
            });
}
BENCHMARK(copyOfTheDay)->Iterations(1)->UseManualTime();

} // namespace vanzer::bench
