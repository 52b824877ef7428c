// An archive as after decades of travelling: destinations with their legs through real places, and what there is to see
// there. The same numbers make the same records.
#pragma once

#include <QString>

#include "window/form.h"

namespace vanzer::bench {

struct Sizes {
    int destinations = 2000;
    int legs = 120'000;
    int entries = 200'000;
};

/// Puts the records into the empty archive of a window; the middle one of the destinations is the current one.
void fillArchive(Form& form, const Sizes& sizes);

/// Makes "Vanzer.mdb" in a folder.
void makeArchive(const QString& folder, const Sizes& sizes);

/// The folder of the big archive: what VANZER_BIG_ARCHIVE names, else one that is made and goes with the process.
[[nodiscard]] QString bigArchive();

} // namespace vanzer::bench
