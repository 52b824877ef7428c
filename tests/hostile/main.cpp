// Lets users who do anything loose on the program: vanzer_hostile [--scripts N] [--from NUMBER] [--lines N]
//
// Scripts are numbered, the same number is the same user. The script at hand lies in a file: where the program breaks
// it is left there, and vanzer-batch can be given it on a copy of the folder whose name stands in its first line.

#include <cstdio>
#include <optional>

#include <unistd.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "hostile/hand.h"
#include "hostile/promises.h"
#include "support/desk.h"

namespace {

using namespace vanzer;
using namespace vanzer::hostile;

constexpr unsigned longestLine = 60; // s; one that takes longer hangs
constexpr int looksEach = 10;        // lines
constexpr std::uint64_t deepEach = 20;

struct Totals {
    long scripts = 0, lines = 0, refused = 0, errors = 0, boxes = 0;
    Looks looks;
};

/// The folders that scripts begin with.
class Folders {
  public:
    Folders() {
        const QString full = QStringLiteral("pieno");
        make(full);
        QFile trip(QStringLiteral(VANZER_SAMPLES "/capo_nord.txt"));
        static_cast<void>(trip.open(QIODevice::ReadOnly));
        {
            batch::Interpreter program({.directory = path(full), .decimalMark = u'.', .versione = {}});
            program.setClock(moment());
            for (const QByteArray& line : trip.readAll().split('\n'))
                static_cast<void>(program.run(QString::fromUtf8(line)));
        }
        Desk(path(full), moment().date())
            .run(QStringList{u"start"_s} + storedTrip(u"ROMA"_s, 6) + storedTrip(u"CASA"_s, 3) +
                 QStringList{u"click cmdExport"_s, u"click cmdImportExport(0)"_s, u"click cmdTutto(0)"_s,
                             u"file giri.iei"_s, u"answer 6"_s, u"click cmdImExp(0)"_s});
        addFiles(path(full));
        for (const QString& name : {u"nuovo"_s, u"vecchio"_s}) {
            make(name);
            QFile::copy(path(full) + u"/giri.iei"_s, path(name) + u"/giri.iei"_s);
            addFiles(path(name));
        }
        copyFolder(QStringLiteral(VANZER_SAMPLES "/vecchi"), path(u"vecchio"_s));
    }

    [[nodiscard]] static QDateTime moment() { return {QDate(2026, 5, 20), QTime(9, 30)}; }
    [[nodiscard]] QString path(const QString& name) const { return all_.filePath(name); }
    /// A copy of one of them; most scripts begin with the full one.
    [[nodiscard]] QString lay(int choice) const {
        const QString work = path(QStringLiteral("lavoro"));
        QDir(work).removeRecursively();
        copyFolder(path(QString::fromLatin1(choice == 0 ? "nuovo" : choice == 1 ? "vecchio" : "pieno")), work);
        return work;
    }

  private:
    void make(const QString& name) const { QDir().mkpath(path(name) + u"/cartella"_s); }

    static void put(const QString& path, const QByteArray& contents) {
        QFile file(path);
        static_cast<void>(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }

    static void addFiles(const QString& folder) {
        copyFolder(QStringLiteral(VANZER_SAMPLES "/percorsi"), folder);
        QFile whole(folder + u"/giri.iei"_s);
        static_cast<void>(whole.open(QIODevice::ReadOnly));
        put(folder + u"/tronco.iei"_s, whole.read(1500));
        put(folder + u"/vuoto.txt"_s, {});
        put(folder + u"/rotto.bin"_s, QByteArray::fromHex("00ff0dfe0afd20fffefd00ff").repeated(50));
    }

    QTemporaryDir all_;
};

/// The lines of the script that runs, on the disk.
class ScriptFile {
  public:
    ScriptFile() : file_(QDir::temp().filePath(QStringLiteral("vanzer_hostile_%1").arg(getpid()))) {
        static_cast<void>(file_.open(QIODevice::ReadWrite | QIODevice::Truncate | QIODevice::Unbuffered));
    }
    void begin() {
        file_.resize(0);
        file_.seek(0);
    }
    void add(const QString& line) { file_.write(line.toUtf8() + '\n'); }
    void remove() { file_.remove(); }
    [[nodiscard]] QString path() const { return file_.fileName(); }

  private:
    QFile file_;
};

/// What is wrong with an answer.
QString wrongAnswer(const QString& line, const std::optional<QJsonObject>& answer, Totals& totals) {
    if (!answer)
        return batch::saysNothing(line) ? QString() : u"no answer"_s;
    totals.refused += answer->contains(u"refused"_s) ? 1 : 0;
    totals.errors += answer->contains(u"error"_s) ? 1 : 0;
    totals.boxes += answer->value(u"boxes"_s).toArray().size();
    return answer->value(u"cmd"_s).toString() == line ? QString() : u"another line's answer"_s;
}

QString brokenNow(batch::Interpreter& program, bool marksRepeated, Totals& totals) {
    const Form* const window = program.window();
    if (window == nullptr)
        return {};
    const QString broken = brokenInWindow(*window, marksRepeated, totals.looks);
    return broken.isEmpty() ? brokenInArchive(const_cast<Form*>(window)->archivio, totals.looks) : broken;
}

/// What broke; empty if all held.
QString runScript(const Folders& folders, std::uint64_t number, int lines, ScriptFile& file, Totals& totals) {
    Hand hand(number);
    const QString folder = folders.lay(hand.below(6));
    QDir::setCurrent(folder);
    file.begin();
    file.add(u"# %1, %2"_s.arg(QString::number(number), folder));
    QString broken;
    bool marksRepeated = false;
    {
        batch::Interpreter program({.directory = folder, .decimalMark = u'.', .versione = {}});
        program.setClock(Folders::moment());
        for (int i = 0; i <= lines && broken.isEmpty(); ++i) {
            const QString line = i == lines ? u"stop"_s : hand.next(program.window());
            file.add(line);
            // A place is copied, and driven through again on the way back, with the mark that stands in its name.
            marksRepeated = marksRepeated || line.contains(u"cmdInsEsegui") || line.contains(u"cmdRitorno");
            alarm(longestLine);
            broken = wrongAnswer(line, program.run(line), totals);
            if (broken.isEmpty() && (i % looksEach == looksEach - 1 || i == lines - 1))
                broken = brokenNow(program, marksRepeated, totals);
            alarm(0);
            ++totals.lines;
        }
    }
    ++totals.scripts;
    if (broken.isEmpty())
        broken = brokenInFolder(folder, number % deepEach == 0, totals.looks);
    return broken;
}

void report(const Totals& totals) {
    std::printf("%ld scripts, %ld lines: %ld refused, %ld not understood, %ld boxes. Looked at:", totals.scripts,
                totals.lines, totals.refused, totals.errors, totals.boxes);
    for (const auto& [what, times] : totals.looks)
        std::printf(" %s %ld;", what.c_str(), times);
    std::printf("\n");
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOptions({{QStringLiteral("scripts"), QString(), QStringLiteral("N"), QStringLiteral("100")},
                       {QStringLiteral("from"), QString(), QStringLiteral("NUMBER"), QStringLiteral("1")},
                       {QStringLiteral("lines"), QString(), QStringLiteral("N"), QStringLiteral("40")}});
    parser.process(application);
    const std::uint64_t from = parser.value(QStringLiteral("from")).toULongLong();
    const std::uint64_t count = parser.value(QStringLiteral("scripts")).toULongLong();
    const Folders folders;
    ScriptFile file;
    Totals totals;
    for (std::uint64_t number = from; number < from + count; ++number) {
        const QString broken = runScript(folders, number, parser.value(QStringLiteral("lines")).toInt(), file, totals);
        if (!broken.isEmpty()) {
            std::printf("script %llu, which is left in %s: %s\n", static_cast<unsigned long long>(number),
                        file.path().toLocal8Bit().constData(), broken.toLocal8Bit().constData());
            return 1;
        }
    }
    file.remove();
    report(totals);
    return count > 0 ? 0 : 1;
}
