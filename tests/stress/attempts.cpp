#include "stress/attempts.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <map>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

namespace vanzer::stress {

namespace {

constexpr unsigned longestTry = 60; // s; one that takes longer hangs
constexpr int mostBad = 5;          // of a test, behind which it ends

constexpr int lostStatus = 1;
constexpr int toldStatus = 3;

struct Tally {
    long tries = 0, lost = 0, crashed = 0, hung = 0, told = 0;
};

std::map<std::string, Tally>& table() {
    static std::map<std::string, Tally> all;
    return all;
}

int bad = 0; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

/// "Kills/import" of the test "Works/Attacked.Kills/import", "LargeArchive" of a test without works.
std::string testName() {
    const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
    const std::string name = test->name();
    return name.find('/') == std::string::npos ? test->test_suite_name() : name;
}

int failuresSoFar() {
    return testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

[[noreturn]] void runChild(const Body& body, bool muted) {
    if (muted)
        static_cast<void>(std::freopen("/dev/null", "w", stdout));
    alarm(longestTry);
    const int failures = failuresSoFar();
    const bool told = body();
    std::fflush(nullptr);
    _exit(failuresSoFar() > failures ? lostStatus : told ? toldStatus : 0);
}

} // namespace

Options& options() {
    static Options all;
    return all;
}

End inChild(const Body& body, bool muted) {
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0)
        runChild(body, muted);
    int status = 0;
    waitpid(child, &status, 0);
    if (WIFSIGNALED(status))
        return WTERMSIG(status) == SIGKILL ? End::Killed : WTERMSIG(status) == SIGALRM ? End::Hung : End::Crashed;
    switch (WEXITSTATUS(status)) {
    case 0: return End::Held;
    case toldStatus: return End::Told;
    case lostStatus: return End::Lost;
    default: return End::Crashed;
    }
}

End attempt(int number, const Body& body) {
    const End end = inChild(body);
    Tally& tally = table()[testName()];
    ++tally.tries;
    tally.told += end == End::Told ? 1 : 0;
    tally.lost += end == End::Lost ? 1 : 0;
    tally.crashed += end == End::Crashed || end == End::Killed ? 1 : 0;
    tally.hung += end == End::Hung ? 1 : 0;
    if (end != End::Held && end != End::Told) {
        ++bad;
        const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
        ADD_FAILURE() << (end == End::Lost   ? "lost"
                          : end == End::Hung ? "hung"
                                             : "crashed")
                      << "; to be seen again with --gtest_filter=" << test->test_suite_name() << '.' << test->name()
                      << " --seed=" << options().seed << " --number=" << number;
    }
    return end;
}

void eachNumber(int first, const std::function<bool(int n)>& once) {
    bad = 0;
    if (const int n = options().number - first; options().number != 0) {
        if (n > 0 && n < together)
            once(n);
        return;
    }
    const int step = options().step;
    for (int n = 1 + static_cast<int>(options().seed) % step; bad < mostBad && once(n); n += step) {
    }
}

void eachDrawn(const std::function<void(int number)>& once, int times) {
    bad = 0;
    const int number = options().number;
    for (int n = std::max(number, 1); bad < mostBad && n <= std::max(number, options().tries * times); ++n) {
        once(n);
        if (number != 0)
            return;
    }
}

void printTable() {
    const std::string& path = options().tally;
    std::map<std::string, Tally> all = table();
    if (!path.empty()) {
        std::string name;
        Tally t;
        for (std::ifstream file(path); file >> name >> t.tries >> t.lost >> t.crashed >> t.hung >> t.told;) {
            Tally& sum = all[name];
            sum = {sum.tries + t.tries, sum.lost + t.lost, sum.crashed + t.crashed, sum.hung + t.hung,
                   sum.told + t.told};
        }
        std::ofstream file(path);
        for (const auto& [test, sum] : all)
            file << test << ' ' << sum.tries << ' ' << sum.lost << ' ' << sum.crashed << ' ' << sum.hung << ' '
                 << sum.told << '\n';
    }
    std::printf("%-40s %9s %6s %8s %6s %9s\n", "attack", "tries", "lost", "crashed", "hung", "told");
    for (const auto& [test, sum] : all)
        std::printf("%-40s %9ld %6ld %8ld %6ld %9ld\n", test.c_str(), sum.tries, sum.lost, sum.crashed, sum.hung,
                    sum.told);
}

} // namespace vanzer::stress
