// The schedule while its test still runs: the rows so far as texts, and how often they may be shown.
#pragma once

#include <chrono>

#include "schedule/rows.h"

namespace vanzer {

/// The most rows that one call makes texts for: about a millisecond's work.
inline constexpr std::size_t massimoRigheNuove = 400;

/// Brings the texts of a test's first rows up to what it has written so far, or as near as one call goes. `rows` holds
/// what an earlier call made for the same test, or nothing; all but its last two rows stay as they are.
void grow(TestiTabella& rows, const Viandoria& soFar, const std::vector<RigaDiLavoro>& work,
          const TestiViandoria& texts);

/// Keeps showings apart by twenty times what the last one took: all of them together take a twentieth of the time.
class RitmoMostre {
  public:
    using Istante = std::chrono::steady_clock::time_point;

    [[nodiscard]] static Istante adesso() { return std::chrono::steady_clock::now(); }
    /// Whether a showing may begin.
    [[nodiscard]] bool isDue(Istante now) const { return now >= next_; }
    void shown(Istante begin, Istante end) { next_ = end + 20 * (end - begin); }

  private:
    Istante next_ = Istante::min();
};

} // namespace vanzer
