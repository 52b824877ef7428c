// A stopwatch around a piece of work.
#pragma once

#include <chrono>
#include <functional>

namespace vanzer::bench {

inline double seconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

} // namespace vanzer::bench
