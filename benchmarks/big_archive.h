// SPDX-License-Identifier: MIT
// An archive as after decades of travelling. It holds destinations with legs through real places, and guide entries for
// these places. The same sizes always give the same records.
#pragma once

#include <QString>

#include "window/form.h"

namespace vanzer::bench {

struct Sizes {
    int destinations = 2000;
    int legs = 120'000;
    int entries = 200'000;
};

/// Puts the records into the empty archive of a window. The middle destination becomes the current one.
void fillArchive(Form& form, const Sizes& sizes);

/// Makes "Vanzer.mdb" in a folder.
void makeArchive(const QString& folder, const Sizes& sizes);

/// The folder of the big archive. It is the one that VANZER_BIG_ARCHIVE names, or else a temporary one that is removed
/// at the end.
[[nodiscard]] QString bigArchive();

} // namespace vanzer::bench
