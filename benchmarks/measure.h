// SPDX-License-Identifier: MIT
// A measure compares a piece of the program's work with the least work that it needs, or with itself on a smaller trip.
// Both sides run in turns in one process. The median of five samples counts.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include <benchmark/benchmark.h>

namespace vanzer::bench {

/// The seconds that a piece of work takes.
[[nodiscard]] double seconds(const std::function<void()>& work);

/// Does a piece of work once. Returns the seconds of the part that counts.
using Timed = std::function<double()>;
[[nodiscard]] Timed timed(std::function<void()> work);

struct Beside {
    std::string work;
    std::string against;
    std::optional<double> atMost = {};  ///< limit: so many times the other side
    std::optional<double> atLeast = {}; ///< limit: so many times faster than the other side
    bool inProcess = true;              ///< false if `ours` works in a process that it starts
};

/// Measures both sides. Short pieces are repeated until they have taken 20 ms. The peak memory is that of `ours` alone.
void measure(benchmark::State& state, const Beside& sides, const Timed& ours, const Timed& theirs);

/// The other side for work that must fit into one frame of the screen: 16 ms.
[[nodiscard]] Timed screenFrame();

} // namespace vanzer::bench
