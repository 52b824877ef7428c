// Works attacked at each of their calls on files in turn, and by losses of power.
#include <cerrno>
#include <csignal>

#include "stress/attacked.h"
#include "stress/power.h"
#include "toolkit/end_signals.h"

namespace vanzer::stress {
namespace {

std::string nameOf(const testing::TestParamInfo<Work>& instance) {
    return instance.param.name;
}

// Nothing of what follows is worth anything if the calls of the libraries don't come through this binary.
TEST_P(Attacked, CallsAreSeen) {
    const auto count = [this](Call call) { return calls[static_cast<std::size_t>(call)]; };
    EXPECT_GT(count(Call::Open) + count(Call::Create), 0);
    EXPECT_GT(count(Call::Read), 0);
    EXPECT_GT(count(Call::Write), 0);
    EXPECT_GT(count(Call::Sync), 0);
    EXPECT_GT(recording.changes.size(), firstRisky);
}

/// The program is killed before each change, and when a write is done by half.
TEST_P(Attacked, Kills) {
    for (const bool half : {false, true}) {
        const int first = half ? together : 0;
        eachNumber(first, [&](int n) {
            ready.lay(folder);
            const End end = inChild([&] {
                Watch watch(folder);
                Desk desk(folder, work().today);
                desk.run(lines(work().before));
                watch.arm({.calls = half ? +Call::Write : changes, .half = half}, n);
                desk.run(lines(work().risky));
                return false;
            });
            EXPECT_TRUE(end == End::Killed || end == End::Held) << n;
            if (end == End::Killed)
                attempt(first + n, [&] {
                    expectWhole(folder, false);
                    return false;
                });
            return end == End::Killed;
        });
    }
}

/// At each change a signal asks for the end: the command at hand is finished or undone, and the program leaves in
/// order.
TEST_P(Attacked, Signals) {
    eachNumber(0, [&](int n) {
        ready.lay(folder);
        const End end = inChild([&] {
            const SegnaliDiFine asked;
            Watch watch(folder);
            Desk desk(folder, work().today);
            desk.run(lines(work().before));
            watch.arm({.calls = changes, .signal = SIGTERM}, n);
            for (const QString& line : lines(work().risky)) {
                if (SegnaliDiFine::arrived() == 0)
                    desk.tries({line});
            }
            return watch.hit();
        });
        EXPECT_TRUE(end == End::Told || end == End::Held) << n;
        if (end == End::Told)
            attempt(n, [&] {
                EXPECT_FALSE(Disk::of(folder).names.contains("Vanzer.mdb-journal"));
                expectWhole(folder, false);
                return false;
            });
        return end == End::Told;
    });
}

/// The power fails at any moment, or behind the command.
TEST_P(Attacked, PowerCuts) {
    eachDrawn([&](int n) {
        std::mt19937_64 chance(options().seed * 1'000'003 + static_cast<unsigned>(n));
        const std::size_t cut = drawnCut(chance);
        afterPowerCut(recording, cut, chance).lay(folder);
        attempt(n, [&] {
            expectWhole(folder, cut == recording.changes.size());
            return false;
        });
    });
}

struct NamedFault {
    const char* name;
    Fault fault;
};
constexpr NamedFault faults[] = {
    {"write error", {+Call::Write, EIO}},
    {"disk full once", {+Call::Write, ENOSPC}},
    {"disk full from then on", {+Call::Write | +Call::Create | +Call::MakeFolder, ENOSPC, true}},
    {"sync error", {+Call::Sync, EIO}},
    {"truncate error", {+Call::Truncate, EIO}},
    {"open error", {+Call::Open | +Call::Create, EMFILE}},
    {"nothing opens from then on", {+Call::Open | +Call::Create, EMFILE, true}},
    {"rename error", {+Call::Rename, EIO}},
    {"delete error", {+Call::Unlink, EIO}},
    {"read error", {+Call::Read, EIO}},
    {"all reads fail from then on", {+Call::Read, EIO, true}},
};

/// A call fails: the user is told or all is stored, the window lives, what was stored stays, and the command given
/// again ends as if nothing had been.
TEST_P(Attacked, Faults) {
    int first = -together;
    int told = 0;
    for (const NamedFault& named : faults) {
        SCOPED_TRACE(named.name);
        first += together;
        eachNumber(first, [&](int n) {
            // What the child has seen of the fault, it leaves behind.
            const QString hit = folders.filePath(u"colpito"_s);
            QFile::remove(hit);
            ready.lay(folder);
            const End end = attempt(first + n, [&] {
                Desk desk(folder, work().today);
                desk.run(lines(work().before));
                Watch watch(folder);
                watch.arm(named.fault, n);
                const QStringList boxes = troubles(desk, work().risky);
                watch.disarm();
                if (watch.hit())
                    QFile(hit).open(QIODevice::WriteOnly);
                expectWholeAfterFault(desk, boxes);
                return !boxes.isEmpty();
            });
            told += end == End::Told ? 1 : 0;
            return QFile::exists(hit);
        });
    }
    if (!work().canBeMadeAnew && options().number == 0) {
        EXPECT_GT(told, 0);
    }
}

INSTANTIATE_TEST_SUITE_P(Works, Attacked, testing::ValuesIn(works()), nameOf);

/// A disk that syncs nothing must lose what is stored, else losses aren't seen here at all.
class Control : public Attacked {};

TEST_P(Control, ADiskThatSyncsNothingLosesWhatIsStored) {
    std::mt19937_64 chance(options().seed);
    int lost = 0;
    for (int n = 0; n < 1000 && lost == 0; ++n) {
        const std::size_t cut = drawnCut(chance);
        afterPowerCut(recording, cut, chance, true).lay(folder);
        const auto judge = [&] {
            expectWhole(folder, cut == recording.changes.size());
            return false;
        };
        lost += inChild(judge, true) == End::Lost ? 1 : 0;
    }
    EXPECT_GT(lost, 0);
}

std::vector<Work> workOn(const std::vector<std::string>& names) {
    std::vector<Work> chosen = works();
    std::erase_if(chosen, [&names](const Work& work) { return std::ranges::find(names, work.name) == names.end(); });
    return chosen;
}

INSTANTIATE_TEST_SUITE_P(Works, Control,
                         testing::ValuesIn(workOn({"saved_itinerary", "import", "rebuild", "copy_of_the_day"})),
                         nameOf);

} // namespace
} // namespace vanzer::stress
