// Which pages a logbook has.
#pragma once

#include <vector>

#include "scribolo/trip.h"

namespace vanzer::scribolo {

/// Days in the table of one summary page.
inline constexpr int summaryRows = 27;

/// One page. The days are counted from 1: the day of a day page, the rows of a summary page, none on the cover.
struct Page {
    enum class Kind { Cover, Day, Summary };
    Kind kind = Kind::Cover;
    int firstDay = 0;
    int lastDay = 0;
};

/// The cover, a page a day, then as many summary pages as the days need.
[[nodiscard]] std::vector<Page> plan(const Trip& trip);

} // namespace vanzer::scribolo
