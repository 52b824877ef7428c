// Marks of use of the guide's entries: while an itinerary is loaded, stored or prepared each entry counts once, at the
// first passage through its place. A run begins with no mark set; the marks are kept in memory and written at its end.
#pragma once

#include <vector>

#include "core/guide_entry.h"
#include "store/archive.h"

namespace vanzer::store {

class SegniGuida {
  public:
    explicit SegniGuida(Archive& archive) : archive_(archive) {}

    /// The archive's own: they hold until it is read or written again.
    using Voci = std::vector<const VoceGuida*>;

    /// The entries of exactly this place, case ignored, that weren't used yet: by category, the longest first, then by
    /// group. They count as used from here on.
    [[nodiscard]] Voci usePlace(const QString& place);
    /// The entries whose place matches the pattern, used in the same way.
    [[nodiscard]] Voci usePattern(const QString& pattern);
    /// Writes the marks of the run to the archive.
    void write() { archive_.putMarksBack(used_); }

  private:
    [[nodiscard]] Voci unused(const VociGuida& entries);

    Archive& archive_;
    InsiemeDiRighe used_;
};

} // namespace vanzer::store
