// SPDX-License-Identifier: MIT
// Attacks each work at each of its calls on files, and by losses of power.
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <regex>

#include <QDir>
#include <QTemporaryDir>

#include "stress/attempts.h"
#include "stress/desk.h"
#include "stress/system_calls.h"
#include "toolkit/end_signals.h"

namespace vanzer::stress {
namespace {

/// Groups records that belong together: those of a destination's itinerary, and those of each other table.
std::map<QString, QStringList> groups(const QStringList& records) {
    std::map<QString, QStringList> found;
    for (const QString& record : records)
        found[record.section(u'|', 0, record.startsWith(u"Itinerari|") ? 1 : 0)] += record;
    return found;
}

/// The text of the boxes that are a fault at a start. A missing archive with copies beside it is a proper state.
std::string wordsAtStart(QStringList boxes) {
    boxes.removeIf([](const QString& box) { return box.contains(u"ci sono le sue copie. Riprendere"_s); });
    return text(boxes);
}

/// Whether an unexpected file may remain after a start. It may be a complete file for others that still has its
/// temporary name. It may be the list of codes of an almost finished conversion. It may also be the old archive, which
/// a restarted rebuild keeps a second time. Files of the archive may not remain.
bool mayBeLeft(const std::string& name) {
    static const std::regex known(R"((giro\.iei|giro\.pdf|Vanztabl\.txt|ListaLocalita\.txt)\.\w{6}|VanzMete\.codici|)"
                                  R"(Copie/Vanzer prima della ricostruzione \d+ \(ancora \d+ avvii\)\.mdb)");
    return std::regex_match(name, known);
}

class Attacked : public testing::TestWithParam<const char*> {
  protected:
    /// Does the work once without an attack, and notes its changes.
    void SetUp() override {
        ASSERT_TRUE(folders.isValid());
        readWork();
        ready.lay(folder);
        before = stored = Desk(folder).records();
        {
            Watch watch(folder);
            watch.record(recording);
            Desk desk(folder, today);
            desk.run(prelude);
            if (!atStart())
                before = desk.records();
            firstRisky = recording.changes.size();
            usualBoxes = desk.run(risky);
            calls = watch.counts;
        }
        done = Disk::of(folder);
        const Disk kept = afterAll(recording);
        ASSERT_EQ(kept.names.size(), done.names.size());
        for (const auto& [name, number] : done.names)
            ASSERT_TRUE(kept[name] == done[name]) << name << " changes behind the back of the recording";
        after = Desk(folder).records();
        startedAfter = started();
        for (const Disk& disk : {ready, done, Disk::of(folder)}) {
            for (const auto& [name, number] : disk.names)
                expected.insert(name);
        }
        ready.lay(folder);
        Desk(folder, today).run(prelude);
        startedBefore = started();
    }

    void readWork() {
        const QStringList work = section("scripts.txt", u"work "_s + QString::fromLatin1(GetParam()));
        const auto lines = [&](const QString& part) { return script(entry(work, part), folder); };
        const QStringList kinds = entry(work, u"kinds"_s).split(u' ');
        prepare(prepared, lines(u"prepare"_s));
        ready = Disk::of(prepared);
        prelude = lines(u"before"_s);
        risky = lines(u"risky"_s);
        again = lines(u"again"_s).isEmpty() ? risky : lines(u"again"_s);
        resume = lines(u"resume"_s);
        for (const QString& output : lines(u"outputs"_s))
            outputs.push_back(output.toStdString());
        inSteps = kinds.contains(u"steps"_s);
        canBeMadeAnew = kinds.contains(u"anew"_s);
        today = QDate(2026, 5, kinds.contains(u"later"_s) ? 20 : 4);
    }

    /// A start consists of several commands. The first ones may be stored when a later one fails.
    [[nodiscard]] bool atStart() const { return prelude.isEmpty(); }
    [[nodiscard]] QStringList starts() const { return atStart() ? risky : QStringList{u"start"_s}; }
    /// The records after one more start.
    [[nodiscard]] QStringList started() const {
        Desk desk(folder, today);
        desk.run(starts());
        return desk.records();
    }
    /// A program that has reached the risky lines.
    [[nodiscard]] std::unique_ptr<Desk> atWork() const {
        auto desk = std::make_unique<Desk>(folder, today);
        desk->run(prelude);
        return desk;
    }
    /// Where the power fails: within the risky lines or after them.
    [[nodiscard]] std::size_t drawnCut(std::mt19937_64& chance) const {
        return firstRisky + chance() % (recording.changes.size() - firstRisky + 1);
    }

    /// Runs the lines up to the first box that doesn't appear without an attack. The user stops there.
    QStringList troubles(Desk& desk, const QStringList& lines) const {
        for (const QString& line : lines) {
            QStringList told = desk.run({line});
            told.removeIf([this](const QString& box) { return usualBoxes.contains(box); });
            if (!told.isEmpty())
                return told;
        }
        return {};
    }

    /// Expects each group of records to be as in one of the states.
    static void expectGroups(const QStringList& found, const std::vector<QStringList>& states) {
        for (const auto& [name, records] : groups(found)) {
            const bool asKnown = std::ranges::any_of(states, [&name = name, &records = records](const auto& state) {
                const auto known = groups(state);
                return known.contains(name) && known.at(name) == records;
            });
            // Old destinations are stored with the first file, and adjusted with the last one.
            EXPECT_TRUE(asKnown || name == u"MeteVanzer") << text(records);
        }
    }

    /// Expects every output to be whole: the old file or the new one.
    void expectOutputs(bool fresh) const {
        const Disk disk = outputs.empty() ? Disk() : Disk::of(folder);
        for (const std::string& name : outputs)
            EXPECT_TRUE(disk[name] == done[name] || (!fresh && disk[name] == ready[name])) << name;
    }

    /// Expects no half-written file. The old copies must be there, and new copies must contain the trips.
    void expectFiles() const {
        const Disk disk = Disk::of(folder);
        for (const auto& [name, number] : ready.names) {
            if (name.starts_with("Copie/") && done.names.contains(name)) {
                EXPECT_TRUE(disk[name] == ready[name]) << name;
            }
        }
        for (const auto& [name, number] : disk.names) {
            EXPECT_TRUE(expected.contains(name) || mayBeLeft(name)) << name << " is left";
            if (!name.starts_with("Copie/") || ready.names.contains(name))
                continue;
            Disk restored;
            restored.names["Vanzer.mdb"] = number;
            restored.contents[number] = disk[name];
            restored.lay(folders.filePath(u"ripresa"_s));
            SCOPED_TRACE(name);
            const QStringList records = Desk(folders.filePath(u"ripresa"_s)).records();
            expectGroups(records, {stored, before, after});
            EXPECT_TRUE(stored.isEmpty() || !records.isEmpty());
        }
    }

    /// Checks what a program has left that was stopped during the work. All is as before or as after, and a new program
    /// starts on it and goes on. `finished`: all was done.
    void expectWhole(bool finished = false) const {
        expectOutputs(false);
        const QStringList found = Desk(folder).records();
        if (inSteps)
            expectGroups(found, {before, after});
        else if (found != before || finished) {
            EXPECT_EQ(text(found), text(after))
                << (found == before ? "the command is undone" : "neither before nor after");
        }
        Desk desk(folder, today);
        EXPECT_EQ(wordsAtStart(desk.run(starts())), "");
        if (!inSteps) {
            EXPECT_EQ(text(desk.records()), text(found == after ? startedAfter : startedBefore));
        }
        const bool resumes = !resume.isEmpty() && (found != after || !outputs.empty());
        if (resumes) {
            desk.run(resume);
            expectOutputs(true);
            desk.run({u"start"_s});
        }
        if (atStart() || resumes) {
            EXPECT_TRUE(groups(desk.records()) == groups(startedAfter)) << text(desk.records()) << "\nand not\n"
                                                                        << text(startedAfter);
        }
        desk.leave();
        expectFiles();
    }

    void attemptWhole(int n, bool finished = false) const {
        attempt(n, [&] {
            expectWhole(finished);
            return false;
        });
    }

    /// Checks what a failed command has left, and that it can be repeated.
    void expectWholeAfterFault(Desk& desk, const QStringList& told) const {
        EXPECT_EQ(unclearWords(told), "");
        EXPECT_TRUE(desk.alive() || (atStart() && !told.isEmpty()));
        expectOutputs(told.isEmpty());
        const QStringList now = desk.records();
        if (!told.isEmpty() && inSteps)
            expectGroups(now, {before, after});
        else if (!told.isEmpty() || !canBeMadeAnew || now != before) {
            EXPECT_EQ(text(now), text(told.isEmpty() ? after : before));
        }
        if (!told.isEmpty() || canBeMadeAnew) {
            EXPECT_EQ(text(troubles(desk, again)), "");
            EXPECT_EQ(text(desk.records()), text(after));
            expectOutputs(true);
        }
        desk.leave();
        expectFiles();
        EXPECT_EQ(text(Desk(folder).records()), text(after));
    }

    QTemporaryDir folders;
    const QString prepared = folders.filePath(u"pronta"_s);
    const QString folder = folders.filePath(u"viaggi"_s); ///< the same for all tests, as its name may go into files
    QStringList prelude, risky, again, resume;            ///< lines, as scripts.txt explains them
    std::vector<std::string> outputs;
    bool inSteps = false, canBeMadeAnew = false;
    QDate today;
    QStringList usualBoxes;
    QStringList stored;                      ///< records that were prepared
    QStringList before, after;               ///< records
    QStringList startedBefore, startedAfter; ///< records after one more start
    Disk ready, done;                        ///< the folder before and after
    std::set<std::string> expected;          ///< files that may exist
    Recording recording;
    std::size_t firstRisky = 0; ///< number of the first change by the risky lines
    std::array<int, kindsOfCalls> calls{};
};

// The other tests prove nothing if the libraries' calls don't come through this binary.
TEST_P(Attacked, CallsAreSeen) {
    for (const Call call : {Call::Open, Call::Read, Call::Write, Call::Sync})
        EXPECT_GT(calls[static_cast<std::size_t>(call)], 0) << static_cast<int>(call);
    EXPECT_GT(recording.changes.size(), firstRisky);
}

/// Kills the program before each change, and in the middle of a write.
TEST_P(Attacked, Kills) {
    for (const bool half : {false, true}) {
        const int first = half ? together : 0;
        eachNumber(first, [&](int n) {
            ready.lay(folder);
            const End end = inChild([&] {
                Watch watch(folder);
                const auto desk = atWork();
                watch.arm({.calls = half ? +Call::Write : changes, .half = half}, n);
                desk->run(risky);
                return false;
            });
            EXPECT_TRUE(end == End::Killed || end == End::Held) << n;
            if (end == End::Killed)
                attemptWhole(first + n);
            return end == End::Killed;
        });
    }
}

/// Sends a signal at each change. The running command is finished or undone, and the program ends properly.
TEST_P(Attacked, Signals) {
    eachNumber(0, [&](int n) {
        ready.lay(folder);
        const End end = inChild([&] {
            const SegnaliDiFine asked;
            Watch watch(folder);
            const auto desk = atWork();
            watch.arm({.calls = changes, .signal = SIGTERM}, n);
            for (const QString& line : risky) {
                if (SegnaliDiFine::arrived() == 0)
                    desk->tries({line});
            }
            return watch.hit;
        });
        EXPECT_TRUE(end == End::Told || end == End::Held) << n;
        if (end == End::Told)
            attempt(n, [&] {
                EXPECT_FALSE(Disk::of(folder).names.contains("Vanzer.mdb-journal"));
                expectWhole();
                return false;
            });
        return end == End::Told;
    });
}

/// Cuts the power at any moment, or after the command.
TEST_P(Attacked, PowerCuts) {
    eachDrawn([&](int n, std::mt19937_64& chance) {
        const std::size_t cut = drawnCut(chance);
        afterPowerCut(recording, cut, chance).lay(folder);
        attemptWhole(n, cut == recording.changes.size());
    });
}

constexpr std::pair<const char*, Fault> faults[] = {
    {"write error", Fault{+Call::Write, EIO}},
    {"disk full once", Fault{+Call::Write, ENOSPC}},
    {"disk full from then on", Fault{+Call::Write | +Call::Create | +Call::MakeFolder, ENOSPC, true}},
    {"sync error", Fault{+Call::Sync, EIO}},
    {"truncate error", Fault{+Call::Truncate, EIO}},
    {"open error", Fault{+Call::Open | +Call::Create, EMFILE}},
    {"nothing opens from then on", Fault{+Call::Open | +Call::Create, EMFILE, true}},
    {"rename error", Fault{+Call::Rename, EIO}},
    {"delete error", Fault{+Call::Unlink, EIO}},
    {"read error", Fault{+Call::Read, EIO}},
    {"all reads fail from then on", Fault{+Call::Read, EIO, true}},
};

/// Lets a call fail. The user is told or all is stored, the window lives on, and stored records stay. The command can
/// be repeated as if nothing had happened.
TEST_P(Attacked, Faults) {
    int first = -together;
    int told = 0;
    for (const auto& [name, fault] : faults) {
        SCOPED_TRACE(name);
        first += together;
        eachNumber(first, [&, &fault = fault](int n) {
            // The child writes down how it met the fault.
            const QString hit = folders.filePath(u"colpito"_s);
            QDir().rmdir(hit);
            ready.lay(folder);
            const End end = attempt(first + n, [&] {
                const auto desk = atWork();
                Watch watch(folder);
                watch.arm(fault, n);
                const QStringList boxes = troubles(*desk, risky);
                watch.disarm();
                if (watch.hit)
                    QDir().mkdir(hit);
                expectWholeAfterFault(*desk, boxes);
                return !boxes.isEmpty();
            });
            told += end == End::Told ? 1 : 0;
            return QDir(hit).exists();
        });
    }
    if (!canBeMadeAnew && options().number == 0) {
        EXPECT_GT(told, 0);
    }
}

const auto nameOf = [](const testing::TestParamInfo<const char*>& instance) { return instance.param; };

INSTANTIATE_TEST_SUITE_P(Works, Attacked,
                         testing::Values("first_start", "saved_itinerary", "deleted_destination", "import",
                                         "guide_entry", "default_values", "saved_destination", "rebuild", "conversion",
                                         "copy_of_the_day", "restored_copy", "resumed_copy", "export", "print",
                                         "looked_up_and_calculated"),
                         nameOf);

/// A disk that syncs nothing must lose stored records. Otherwise these tests wouldn't notice any loss.
class LyingDisk : public Attacked {};

TEST_P(LyingDisk, LosesWhatIsStored) {
    std::mt19937_64 chance(options().seed);
    int lost = 0;
    for (int n = 0; n < 1000 && lost == 0; ++n) {
        const std::size_t cut = drawnCut(chance);
        afterPowerCut(recording, cut, chance, true).lay(folder);
        const auto judge = [&] {
            expectWhole(cut == recording.changes.size());
            return false;
        };
        lost += inChild(judge, true) == End::Lost ? 1 : 0;
    }
    EXPECT_GT(lost, 0);
}

INSTANTIATE_TEST_SUITE_P(Works, LyingDisk, testing::Values("saved_itinerary", "import", "rebuild", "copy_of_the_day"),
                         nameOf);

} // namespace
} // namespace vanzer::stress
