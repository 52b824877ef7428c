// From the start of the program to its first idle moment, on a big archive whose copy of the day is made.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "bare_archive.h"
#include "big_trip.h"
#include "core/place_name.h"
#include "measure.h"
#include "store/daily_copy.h"

namespace vanzer::bench {

namespace {

QString program(const char* name) {
    return QCoreApplication::applicationDirPath() + u'/' + QLatin1StringView(name);
}

void run(const QString& path, const QStringList& arguments) {
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(path, arguments);
    process.waitForFinished();
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        throw std::runtime_error("a program that was to be timed failed");
}

/// The big archive in a folder of its own, with the places of its current trip.
class Folder {
  public:
    Folder() {
        QFile::copy(bigArchive() + QStringLiteral("/Vanzer.mdb"), archive());
        QFile script(path("start.txt"));
        if (script.open(QIODevice::WriteOnly))
            script.write("start\nstop\n");
        script.close();
        batch::Session session({.directory = directory_.path(), .decimalMark = u'.', .versione = {}});
        session.start();
        const Grid& table = session.window()->mfgTab;
        for (int r = 1; r <= session.window()->stato.NumeroTappe; ++r)
            places_.push_back(PulisceNomeLocalita(table.cell(r, 1)));
    }

    [[nodiscard]] QString folder() const { return directory_.path(); }
    [[nodiscard]] QString path(const char* name) const { return directory_.filePath(QLatin1StringView(name)); }
    [[nodiscard]] QString archive() const { return path("Vanzer.mdb"); }

    /// What the program reads of its current trip.
    void readBare() const {
        BareArchive bare(archive());
        const std::string code = bare.currentCode();
        benchmark::DoNotOptimize(bare.readDestination(code));
        benchmark::DoNotOptimize(bare.readLegs(code));
        benchmark::DoNotOptimize(bare.readGuide(places_));
    }

  private:
    QTemporaryDir directory_;
    std::vector<QString> places_;
};

constexpr const char* against = "an empty Qt program, and the current trip read by bare calls";

} // namespace

void startOfBatch(benchmark::State& state) {
    const Folder folder;
    const QStringList script{QStringLiteral("--dir"), folder.folder(), QStringLiteral("--script"),
                             folder.path("start.txt")};
    compare(
        state,
        {.work = "start of `vanzer-batch` to idle, big archive", .against = against, .atMost = 1.5, .inProcess = false},
        timed([&] { run(program("vanzer-batch"), script); }), timed([&] {
            run(program("empty_batch"), {});
            folder.readBare();
        }));
}
BENCHMARK(startOfBatch)->Iterations(1)->UseManualTime();

void startOfWindow(benchmark::State& state) {
    const Folder folder;
    compare(state,
            {.work = "start of the window to idle, big archive", .against = against, .atMost = 1.5, .inProcess = false},
            timed([&] { run(program("vanzer_window"), {folder.folder()}); }), timed([&] {
                run(program("empty_window"), {});
                folder.readBare();
            }));
}
BENCHMARK(startOfWindow)->Iterations(1)->UseManualTime();

/// The first start of a day copies the archive.
void copyOfTheDay(benchmark::State& state) {
    const Folder folder;
    const auto archive = store::Database::apre(folder.archive());
    const QString bareCopy = folder.path("bare.mdb");
    const auto copies = [&folder] { QDir(folder.path("Copie")).removeRecursively(); };
    const auto ours = [&] {
        copies();
        return seconds([&] { static_cast<void>(store::copiaDelGiorno(*archive, QDate(2026, 5, 4), {})); });
    };
    compare(state, {.work = "copy of the day, big archive", .against = "the file copied by the system"}, ours, [&] {
        QFile::remove(bareCopy);
        return seconds([&] { QFile::copy(folder.archive(), bareCopy); });
    });
}
BENCHMARK(copyOfTheDay)->Iterations(1)->UseManualTime();

} // namespace vanzer::bench
