// SPDX-License-Identifier: MIT
// Marks of use of the guide's entries. While an itinerary is loaded, stored or prepared, each entry counts once, when
// its place is first passed. A run begins without marks, keeps them in memory and writes them at its end.
#pragma once

#include <vector>

#include "core/guide_entry.h"
#include "store/archive.h"

namespace vanzer::store {

class SegniGuida {
  public:
    explicit SegniGuida(Archive& archive) : archive_(archive) {}

    /// Pointers to entries that the archive keeps. They hold until the guide is read or written again.
    using Voci = std::vector<const VoceGuida*>;

    /// Returns the unused entries of exactly this place, case ignored, and marks them as used. They are sorted by
    /// category, then by descending time, then by group.
    [[nodiscard]] Voci usePlace(const QString& place);
    /// The same for entries whose place matches the pattern, in the order in which they were added. A pattern without
    /// wildcards is a place.
    [[nodiscard]] Voci usePattern(const QString& pattern);
    /// Writes the marks of the run to the archive.
    void write() { archive_.putMarksBack(used_); }

  private:
    [[nodiscard]] Voci unused(const VociGuida& entries);

    Archive& archive_;
    InsiemeDiRighe used_;
};

} // namespace vanzer::store
