// The program is killed at a moment drawn by chance while it works on an archive; then the archive must be as it was
// before the command at hand or as it is after it: vanzer_kills [--kills=N] [--seed=N].
#include <algorithm>
#include <cstdio>
#include <map>
#include <random>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include "kills/killed_run.h"
#include "kills/workloads.h"
#include "store/database.h"
#include "support/desk.h"

namespace vanzer::kills {

namespace {

int kills = 20;              // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
unsigned long long seed = 1; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

const QDate today(2026, 5, 20);

/// The records without the guide's marks of use, which are made anew at each load.
QStringList recordsIn(Desk& desk) {
    QStringList records = QString::fromStdString(desk.records()).split(u'\n', Qt::SkipEmptyParts);
    for (QString& record : records) {
        if (record.startsWith(u"GuidaCitta|"))
            record = record.section(u'|', 0, 5) + record.section(u'|', 7);
    }
    return records;
}

/// The records that belong together: those of a destination's itinerary, those of each other table.
std::map<QString, QStringList> groups(const QStringList& records) {
    std::map<QString, QStringList> found;
    for (const QString& record : records)
        found[record.section(u'|', 0, record.startsWith(u"Itinerari|") ? 1 : 0)] += record;
    return found;
}

std::string firstDifference(const QStringList& expected, const QStringList& found) {
    const auto [a, b] = std::ranges::mismatch(expected, found);
    return "expected: " + (a == expected.end() ? "nothing more" : a->toStdString()) +
           "\nfound:    " + (b == found.end() ? "nothing more" : b->toStdString());
}

/// A workload with what is stored before its first line and after each line, and when each answer comes.
struct Known {
    const Workload* work;
    QString folder;
    std::vector<QStringList> states;
    std::vector<double> answerAt;
};

Known known(const Workload& work, const QString& folder) {
    Known result{&work, folder, {}, {}};
    const QString sound = folder + u".sound"_s;
    QDir().mkpath(folder);
    work.prepare(folder);
    copyFolder(folder, sound);
    {
        Desk before(sound);
        result.states.push_back(recordsIn(before));
    }
    {
        Desk desk(sound, today);
        for (const QString& line : work.lines) {
            desk.run({line});
            result.states.push_back(recordsIn(desk));
        }
    }
    const QString timed = folder + u".timed"_s;
    copyFolder(folder, timed);
    result.answerAt = runAndKill(timed, work.lines, [](int, double, double) { return false; }).answerAt;
    EXPECT_EQ(result.answerAt.size(), static_cast<std::size_t>(work.lines.size())) << work.name;
    return result;
}

/// A journal that the next program has to roll back begins with this.
bool hotJournal(const QString& folder) {
    QFile journal(folder + u"/Vanzer.mdb-journal"_s);
    return journal.open(QIODevice::ReadOnly) && journal.read(8) == QByteArray::fromHex("d9d505f920a163d7");
}

struct Counts {
    int kills = 0;
    int atStart = 0;   ///< before the first answer
    int inWriting = 0; ///< in a command that writes
    int afterEnd = 0;  ///< the program was faster
    int hot = 0;
    int rebuilding = 0; ///< a half-made new file lay there
    int copying = 0;    ///< a half-made copy lay there
    int before = 0, after = 0, between = 0;
};

class Kills : public testing::Test {
  protected:
    double uniform() { return static_cast<double>(chance() >> 11) / 9007199254740992.0; }
    int below(std::size_t limit) { return static_cast<int>(chance() % limit); }

    /// Any moment of the whole; or one of a line that writes, from its begin on; or when such a line has begun to
    /// store.
    Moment drawMoment(const Known& known, const QString& folder) {
        const auto kind = chance() % 4;
        if (kind == 0) {
            const double at = uniform() * known.answerAt.back() * 1.1;
            return [at](int, double elapsed, double) { return elapsed >= at; };
        }
        const int line = known.work->writing[static_cast<std::size_t>(below(known.work->writing.size()))];
        const auto index = static_cast<std::size_t>(line);
        const double took = known.answerAt[index] - (line == 0 ? 0 : known.answerAt[index - 1]);
        const double share = uniform();
        if (kind == 1)
            return [line, at = share * took * 1.1](int answers, double, double since) {
                return answers > line || (answers == line && since >= at);
            };
        return [line, folder, wait = share * took / 5, stores = -1.0](int answers, double elapsed, double) mutable {
            if (stores < 0 && answers == line && hotJournal(folder))
                stores = elapsed;
            return answers > line || (stores >= 0 && elapsed >= stores + wait);
        };
    }

    void count(Counts& counts, const Known& known, const KilledRun& run, const QString& folder) {
        ++counts.kills;
        counts.atStart += run.killed && run.answers == 0 ? 1 : 0;
        counts.inWriting += run.killed && std::ranges::count(known.work->writing, run.answers) > 0 ? 1 : 0;
        counts.afterEnd += run.killed ? 0 : 1;
        counts.hot += hotJournal(folder) ? 1 : 0;
        counts.rebuilding += QFile::exists(folder + u"/DBTemp.mdb"_s) ? 1 : 0;
        counts.copying += contains(filesIn(folder + u"/Copie"_s), ".parte") ? 1 : 0;
    }

    static void expectSound(const QString& folder) {
        const auto file = store::Database::apre(folder + u"/Vanzer.mdb"_s);
        const auto check = file->prepara("PRAGMA integrity_check");
        ASSERT_TRUE(check->step());
        EXPECT_EQ(check->text(0).toStdString(), "ok");
    }

    /// All as before the command at hand or all as after it; where it stores in steps, each group for itself.
    void expectBeforeOrAfter(const Known& known, const KilledRun& run, const QStringList& found, Counts& counts) {
        const auto at = static_cast<std::size_t>(run.answers);
        const QStringList& before = known.states[at];
        const QStringList& after = known.states[std::min(at + 1, known.states.size() - 1)];
        if (found == before || found == after) {
            ++(found == before ? counts.before : counts.after);
            return;
        }
        ++counts.between;
        ASSERT_TRUE(known.work->inSteps && at + 1 == known.states.size() - 1)
            << "before\n"
            << firstDifference(before, found) << "\nafter\n"
            << firstDifference(after, found);
        auto old = groups(before);
        auto fresh = groups(after);
        for (const auto& [name, records] : groups(found)) {
            if (name != u"MeteVanzer") { // written with the first file, adjusted with the last
                EXPECT_TRUE(records == old[name] || records == fresh[name]) << name.toStdString();
            }
        }
    }

    /// The program itself opens it, without a word, and nothing half-made stays.
    static void expectUsable(const Known& known, const KilledRun& run, const QString& folder,
                             const QStringList& found) {
        const bool converted = known.work->inSteps && found == known.states.back();
        {
            Desk desk(folder, today);
            EXPECT_EQ(desk.run({u"start"_s}).join(u'\n').toStdString(), "");
            const QStringList now = recordsIn(desk);
            const QStringList& expected = run.answers == 0 ? known.states[1] : found;
            // A start behind the conversion adds the categories of today.
            if (!converted && now != expected)
                ADD_FAILURE() << "after a start\n" << firstDifference(expected, now);
            if (known.work->inSteps && run.answers >= static_cast<int>(known.work->lines.size()) - 1 && !converted)
                resume(known, desk);
        }
        for (const char* left : {"DBTemp", "-journal"})
            EXPECT_FALSE(contains(filesIn(folder), left)) << filesIn(folder);
        EXPECT_FALSE(contains(filesIn(folder + u"/Copie"_s), "parte"));
        for (const QString& copy : QDir(folder + u"/Copie"_s).entryList(QDir::Files))
            EXPECT_TRUE(store::Database::apre(folder + u"/Copie/"_s + copy)->intatto());
    }

    /// What was left in the old files comes in.
    static void resume(const Known& known, Desk& desk) {
        desk.run(known.work->lines.mid(known.work->lines.size() - 2));
        const QStringList now = recordsIn(desk);
        if (groups(now) != groups(known.states.back()))
            ADD_FAILURE() << "after the rest was converted\n" << firstDifference(known.states.back(), now);
    }

    std::mt19937_64 chance{seed};
    QTemporaryDir folders;
};

TEST_F(Kills, LeaveTheArchiveAsBeforeOrAsAfter) {
    ASSERT_TRUE(folders.isValid());
    std::vector<Known> all;
    for (const Workload& work : workloads())
        all.push_back(known(work, folders.filePath(QString::fromLatin1(work.name))));
    std::map<const char*, Counts> counted;
    for (int i = 0; i < kills && !HasFailure(); ++i) {
        const Known& known = all[static_cast<std::size_t>(i) % all.size()];
        Counts& counts = counted[known.work->name];
        const QString folder = folders.filePath(u"killed"_s);
        copyFolder(known.folder, folder);
        const KilledRun run = runAndKill(folder, known.work->lines, drawMoment(known, folder));
        SCOPED_TRACE(testing::Message() << "seed " << seed << ", kill " << i << ", " << known.work->name << " behind "
                                        << run.answers << " answers");
        count(counts, known, run, folder);
        QStringList found;
        {
            Desk reader(folder);
            found = recordsIn(reader);
        }
        expectBeforeOrAfter(known, run, found, counts);
        expectUsable(known, run, folder, found);
        expectSound(folder);
        QDir(folder).removeRecursively();
    }
    for (const auto& [name, c] : counted)
        std::printf(
            "%s: %d runs, %d ended first; killed %d at the start, %d in a writing command; journals to roll back "
            "%d, new files half made %d, copies half made %d; found as before %d, as after %d, between two files "
            "%d\n",
            name, c.kills, c.afterEnd, c.atStart, c.inWriting, c.hot, c.rebuilding, c.copying, c.before, c.after,
            c.between);
}

/// The command at hand is finished or undone, its answer still comes, and the program ends by the signal.
TEST_F(Kills, ASignalLeavesNothingHalfMade) {
    ASSERT_TRUE(folders.isValid());
    int ended = 0;
    int undone = 0;
    for (const Workload& work : workloads()) {
        const Known known = kills::known(work, folders.filePath(QString::fromLatin1(work.name)));
        for (int i = 0; i < std::max(kills / 10, 4) && !HasFailure(); ++i) {
            const QString folder = folders.filePath(u"ended"_s);
            copyFolder(known.folder, folder);
            const KilledRun run = runAndKill(folder, work.lines, drawMoment(known, folder), SIGTERM);
            SCOPED_TRACE(testing::Message() << "seed " << seed << ", " << work.name << " behind " << run.answers);
            EXPECT_TRUE(run.killed || run.answers == static_cast<int>(work.lines.size()));
            for (const char* left : {"DBTemp", "-journal", ".parte"})
                EXPECT_FALSE(contains(filesIn(folder) + filesIn(folder + u"/Copie"_s), left)) << filesIn(folder);
            const auto at = static_cast<std::size_t>(run.answers);
            QStringList found;
            {
                Desk reader(folder);
                found = recordsIn(reader);
            }
            const bool before = at > 0 && found == known.states[at - 1];
            EXPECT_TRUE(found == known.states[at] || before || work.inSteps)
                << firstDifference(known.states[at], found);
            ended += run.killed ? 1 : 0;
            undone += before && found != known.states[at] ? 1 : 0;
            if (QFile::exists(folder + u"/Vanzer.mdb"_s))
                expectSound(folder);
            QDir(folder).removeRecursively();
        }
    }
    EXPECT_GT(ended, 0);
    std::printf("%d ended by the signal, %d of them with a command undone\n", ended, undone);
}

TEST(TwoPrograms, TheSecondIsToldByNameAndChangesNothing) {
    const QTemporaryDir home;
    const QString folder = home.filePath(u"viaggi"_s);
    QDir().mkpath(folder);
    Desk first(folder, today);
    first.run(QStringList{u"start"_s} + storedTrip(u"GARDA"_s, 5));
    // Not even the archive itself, chosen as a file to import, opens the door.
    const QStringList told =
        first.run({u"click cmdExport"_s, u"file Vanzer.mdb"_s, u"click cmdImportExport(1)"_s, u"click cmdImExp(1)"_s});
    EXPECT_TRUE(told.join(u' ').contains(u"è l'archivio stesso")) << told.join(u' ').toStdString();
    // By another program: whoever opens and closes the archive's file here lets go of its lock.
    const QString before = home.filePath(u"prima"_s);
    ASSERT_EQ(QProcess::execute(u"cp"_s, {u"-r"_s, folder, before}), 0);
    const KilledRun second = runAndKill(folder, {u"start"_s, u"click cmdNuovo"_s, u"table MeteVanzer"_s},
                                        [](int, double, double) { return false; });
    EXPECT_EQ(second.answers, 3);
    EXPECT_TRUE(second.output.contains((folder + u"/Vanzer.mdb è già aperto da un altro Vanzer"_s).toUtf8()))
        << second.output.toStdString();
    EXPECT_EQ(second.output.count("\"error\""), 2);
    EXPECT_EQ(QProcess::execute(u"diff"_s, {u"-r"_s, folder, before}), 0);
    EXPECT_TRUE(first.run(storedTrip(u"COMO"_s, 5)).join(u' ').contains(u"Confermi inserimento meta?"));
    EXPECT_TRUE(contains(first.records(), "COMO 4"));
}

} // namespace

/// Reads the options of this program, which stand behind those of the test framework.
bool readOptions(const QStringList& arguments) {
    for (const QString& argument : arguments.mid(1)) {
        bool number = false;
        const unsigned long long value = argument.section(u'=', 1).toULongLong(&number);
        if (number && argument.startsWith(u"--kills="))
            kills = static_cast<int>(value);
        else if (number && argument.startsWith(u"--seed="))
            seed = value;
        else
            return false;
    }
    return true;
}

} // namespace vanzer::kills

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    if (!vanzer::kills::readOptions(QCoreApplication::arguments())) {
        std::fputs("vanzer_kills [--kills=N] [--seed=N]\n", stderr);
        return 2;
    }
    return RUN_ALL_TESTS();
}
