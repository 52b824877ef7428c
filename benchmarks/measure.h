// What a measure is: a piece of the program's work beside the bare work that it can't do without, or beside itself on
// a smaller trip. Both sides are timed in turns, in one run; the median of five counts.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include <benchmark/benchmark.h>

namespace vanzer::bench {

/// Seconds that a piece of work takes.
[[nodiscard]] double seconds(const std::function<void()>& work);

/// Carries a piece of work out once and tells the seconds of that part of it which counts.
using Timed = std::function<double()>;
[[nodiscard]] Timed timed(std::function<void()> work);

struct Beside {
    std::string work;
    std::string against;
    std::optional<double> atMost = {};  ///< times the other side
    std::optional<double> atLeast = {}; ///< times faster than the other side
    bool inProcess = true;              ///< `ours` works in this process, not in one that it starts
};

/// Short pieces are repeated until they have taken 20 ms. The peak memory is that of `ours` alone.
void measure(benchmark::State& state, const Beside& sides, const Timed& ours, const Timed& theirs);

/// What stands beside a piece of work that may take as long as a screen shows a picture: 16 ms.
[[nodiscard]] Timed screenFrame();

} // namespace vanzer::bench
