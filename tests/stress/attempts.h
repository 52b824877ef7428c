// Tries, each in a process of its own, and the table of how they ended.
#pragma once

#include <cstdint>
#include <functional>
#include <random>

namespace vanzer::stress {

/// What the command line asks for.
struct Options {
    std::uint64_t seed = 1;
    int number = 0; ///< of the one try to make; 0 for all
    int tries = 30; ///< of each attack that draws them
    int step = 1;   ///< of the others, each so many'th is made, from one on that the seed says
};
Options& options();

enum class End { Held, Told, Killed, Lost, Crashed, Hung };

/// Runs in a child; the result is whether the user was told something. What a test expects there in vain is lost, and
/// so is memory that nobody gives back.
using Body = std::function<bool()>;

/// One that takes longer hangs.
inline constexpr unsigned longestTry = 60; // s

/// A try that nobody counts. `muted` keeps quiet about what was lost.
[[nodiscard]] End inChild(const Body& body, bool muted = false);

/// The try of that number of the running test goes into the table. One that ends badly fails the test and is named so
/// that it can be made again.
End attempt(int number, const Body& body);

/// Numbers of a test's tries from one on to the next thousands belong together.
inline constexpr int together = 10'000;

/// Gives 1, 2, 3 … to `once` until it answers false, or after five tries that ended badly; where one try is asked for,
/// its number behind `first` alone.
void eachNumber(int first, const std::function<bool(int n)>& once, int step = options().step);
/// Gives it the numbers of as many tries as are asked for, or so many times as many, each with a chance of its own: the
/// same on every machine.
void eachDrawn(const std::function<void(int number, std::mt19937_64& chance)>& once, int times = 1);

/// Ends of tries, by test.
void printTable();

} // namespace vanzer::stress
