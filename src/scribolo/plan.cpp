// SPDX-License-Identifier: MIT
#include "scribolo/plan.h"

#include <algorithm>

namespace vanzer::scribolo {

std::vector<Page> plan(const Trip& trip) {
    std::vector<Page> pages{{}};
    for (int day = 1; day <= trip.days; ++day)
        pages.push_back({.kind = Page::Kind::Day, .firstDay = day, .lastDay = day});
    for (int day = 1; day <= trip.days; day += summaryRows)
        pages.push_back(
            {.kind = Page::Kind::Summary, .firstDay = day, .lastDay = std::min(day + summaryRows - 1, trip.days)});
    return pages;
}

} // namespace vanzer::scribolo
