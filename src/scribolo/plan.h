// SPDX-License-Identifier: MIT
// Which pages a logbook has.
#pragma once

#include <vector>

#include "scribolo/trip.h"

namespace vanzer::scribolo {

/// Days in the table of one summary page.
inline constexpr int summaryRows = 27;

/// One page. Days count from 1: the day of a day page, the first and last day of a summary page, 0 for the cover.
struct Page {
    enum class Kind { Cover, Day, Summary };
    Kind kind = Kind::Cover;
    int firstDay = 0;
    int lastDay = 0;
};

/// The pages of a logbook: the cover, one page a day, then as many summary pages as needed.
[[nodiscard]] std::vector<Page> plan(const Trip& trip);

} // namespace vanzer::scribolo
