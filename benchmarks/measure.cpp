// SPDX-License-Identifier: MIT
#include "measure.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>
#include <vector>

#include <QFile>

namespace vanzer::bench {

namespace {

constexpr int turns = 5;
constexpr double shortest = 0.02; ///< least seconds of counted work in a sample
constexpr double longest = 0.5;   ///< most seconds of a sample, including the uncounted part

struct Side {
    Timed work;
    int times = 1; ///< runs in a sample

    double sample() const {
        double sum = 0;
        for (int i = 0; i < times; ++i)
            sum += work();
        return sum / times;
    }
    /// The first run warms the caches. The second one tells how often a sample has to run the work.
    void tryOut() {
        work();
        double counted = 0;
        const double all = seconds([&] { counted = work(); });
        times = static_cast<int>(std::clamp(std::min(shortest / std::max(counted, 1e-9), longest / all), 1.0, 1e5));
    }
};

double median(std::array<double, turns> times) {
    std::ranges::sort(times);
    return times[turns / 2];
}

/// Restarts the count of the peak memory.
void resetPeak() {
    QFile clear(QStringLiteral("/proc/self/clear_refs"));
    if (clear.open(QIODevice::WriteOnly))
        clear.write("5");
}

/// The peak memory of the process since then, MB.
double peak() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
    }
    return 0;
}

} // namespace

double seconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

Timed timed(std::function<void()> work) {
    return [work = std::move(work)] { return seconds(work); };
}

Timed screenFrame() {
    return [] { return 0.016; };
}

void measure(benchmark::State& state, const Beside& sides, const Timed& ours, const Timed& theirs) {
    state.SetLabel(sides.work + " | " + sides.against);
    Side mine{ours};
    Side other{theirs};
    double memory = 0;
    std::array<double, turns> our{};
    std::array<double, turns> their{};
    for (auto _ : state) {
        resetPeak();
        mine.tryOut();
        memory = sides.inProcess ? peak() : 0;
        other.tryOut();
        for (std::size_t i = 0; i < turns; ++i) {
            our[i] = mine.sample();
            their[i] = other.sample();
        }
        state.SetIterationTime(median(our));
    }
    state.counters["ours"] = median(our);
    state.counters["peak"] = memory;
    state.counters["theirs"] = median(their);
    state.counters["ratio"] = sides.atLeast ? median(their) / median(our) : median(our) / median(their);
    if (sides.atMost)
        state.counters["atMost"] = *sides.atMost;
    if (sides.atLeast)
        state.counters["atLeast"] = *sides.atLeast;
}

} // namespace vanzer::bench
