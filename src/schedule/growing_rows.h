// SPDX-License-Identifier: MIT
// The schedule during its test: the rows so far as texts, and how often to show them.
#pragma once

#include <chrono>

#include "schedule/rows.h"

namespace vanzer {

/// The most rows that one call turns into texts. That takes about a millisecond.
inline constexpr std::size_t massimoRigheNuove = 400;

/// Updates `rows` to what a test has written so far, or as far as one call may go. `rows` is the result of an earlier
/// call for the same test, or empty. All its rows except the last two stay as they are.
void grow(TestiTabella& rows, const Viandoria& soFar, const std::vector<RigaDiLavoro>& work,
          const TestiViandoria& texts);

/// Spaces out the showings. After each one it waits twenty times as long as that took, so that showings need a
/// twentieth of the time.
class RitmoMostre {
  public:
    using Istante = std::chrono::steady_clock::time_point;

    [[nodiscard]] static Istante adesso() { return std::chrono::steady_clock::now(); }
    /// Whether it is time for the next showing.
    [[nodiscard]] bool isDue(Istante now) const { return now >= next_; }
    void shown(Istante begin, Istante end) { next_ = end + 20 * (end - begin); }

  private:
    Istante next_ = Istante::min();
};

} // namespace vanzer
