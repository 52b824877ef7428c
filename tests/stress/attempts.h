// SPDX-License-Identifier: MIT
// Runs tries, each in its own process, and counts how they ended.
#pragma once

#include <cstdint>
#include <functional>
#include <random>

namespace vanzer::stress {

/// The options of the command line.
struct Options {
    std::uint64_t seed = 1;
    int number = 0; ///< number of the single try to run; 0 for all
    int tries = 30; ///< tries of each attack that draws them
    int step = 1;   ///< other attacks run every step-th try, from one that depends on the seed
};
Options& options();

enum class End { Held, Told, Killed, Lost, Crashed, Hung };

/// Runs in a child. Returns whether the user was told something. A failed expectation there counts as a loss, and so
/// does leaked memory.
using Body = std::function<bool()>;

/// A try that takes longer counts as hung.
inline constexpr unsigned longestTry = 60; // s

/// Runs a try without counting it. `muted` doesn't print failures.
[[nodiscard]] End inChild(const Body& body, bool muted = false);

/// Runs a try of the running test and counts it. A bad end fails the test, with the command that repeats the try.
End attempt(int number, const Body& body);

/// Tries of one test whose numbers are in the same block of so many belong together.
inline constexpr int together = 10'000;

/// Calls `once` with 1, 2, 3 … until it returns false, or until five tries have ended badly. If a single try is asked
/// for, calls it with its number after `first` only.
void eachNumber(int first, const std::function<bool(int n)>& once, int step = options().step);
/// Calls `once` with the numbers of as many tries as are asked for, times `times`. Each gets its own random generator,
/// which is the same on every machine.
void eachDrawn(const std::function<void(int number, std::mt19937_64& chance)>& once, int times = 1);

/// Prints the ends of the tries, by test.
void printTable();

} // namespace vanzer::stress
