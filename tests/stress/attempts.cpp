// SPDX-License-Identifier: MIT
#include "stress/attempts.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <numeric>
#include <string>

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern "C" [[gnu::weak]] int __lsan_do_recoverable_leak_check(); // exists with sanitizers only

namespace vanzer::stress {

namespace {

constexpr int mostBad = 5; // bad tries of a test, after which it ends

constexpr const char* endNames[] = {"held", "told", "killed", "lost", "crashed", "hung"};
/// The number of tries with each end, by test.
auto& tallies() {
    static std::map<std::string, std::array<long, std::size(endNames)>> all;
    return all;
}

int bad = 0; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

const testing::TestInfo& running() {
    return *testing::UnitTest::GetInstance()->current_test_info();
}

[[noreturn]] void runChild(const Body& body, bool muted) noexcept {
    if (muted &&
        (std::freopen("/dev/null", "w", stdout) == nullptr || std::freopen("/dev/null", "w", stderr) == nullptr))
        std::abort();
    // The sanitizers' shadow memory takes terabytes of addresses.
    const rlimit room{rlim_t{4} << 30, rlim_t{4} << 30};
    if (__lsan_do_recoverable_leak_check == nullptr)
        setrlimit(RLIMIT_AS, &room);
    alarm(longestTry);
    const int failures = running().result()->total_part_count();
    const bool told = body();
    std::fflush(nullptr);
    const bool leaks = __lsan_do_recoverable_leak_check != nullptr && __lsan_do_recoverable_leak_check() != 0;
    const bool lost = leaks || running().result()->total_part_count() > failures;
    _exit(static_cast<int>(lost ? End::Lost : told ? End::Told : End::Held));
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
    const auto end = static_cast<End>(WEXITSTATUS(status));
    return end == End::Held || end == End::Told || end == End::Lost ? end : End::Crashed;
}

End attempt(int number, const Body& body) {
    const End end = inChild(body);
    const testing::TestInfo& test = running();
    // "Kills/import" for the test "Works/Attacked.Kills/import", "LargeArchive" for a test without works.
    const std::string name = test.name();
    ++tallies()[name.find('/') == std::string::npos ? test.test_suite_name() : name][static_cast<std::size_t>(end)];
    if (end != End::Held && end != End::Told) {
        ++bad;
        ADD_FAILURE() << endNames[static_cast<std::size_t>(end)]
                      << "; to be seen again with --gtest_filter=" << test.test_suite_name() << '.' << name
                      << " --seed=" << options().seed << " --number=" << number;
    }
    return end;
}

void eachNumber(int first, const std::function<bool(int n)>& once, int step) {
    bad = 0;
    if (const int n = options().number - first; options().number != 0) {
        if (n > 0 && n < together)
            once(n);
        return;
    }
    for (int n = 1 + static_cast<int>(options().seed) % step; bad < mostBad && once(n); n += step) {
    }
}

void eachDrawn(const std::function<void(int number, std::mt19937_64& chance)>& once, int times) {
    const auto draws = [&](int n) {
        std::mt19937_64 chance(options().seed * 1'000'003 + static_cast<unsigned>(n));
        once(n, chance);
        return n < options().tries * times;
    };
    eachNumber(0, draws, 1);
}

void printTable() {
    std::printf("%-40s %9s %6s %8s %6s %9s\n", "attack", "tries", "lost", "crashed", "hung", "told");
    for (const auto& [test, ends] : tallies()) {
        const auto of = [&ends = ends](End end) { return ends[static_cast<std::size_t>(end)]; };
        std::printf("%-40s %9ld %6ld %8ld %6ld %9ld\n", test.c_str(), std::accumulate(ends.begin(), ends.end(), 0L),
                    of(End::Lost), of(End::Crashed) + of(End::Killed), of(End::Hung), of(End::Told));
    }
}

} // namespace vanzer::stress
