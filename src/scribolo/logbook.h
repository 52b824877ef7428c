// SPDX-License-Identifier: MIT
// Draws the pages of the logbook, without any file or printer.
#pragma once

#include "paper/fonts.h"
#include "paper/page.h"
#include "scribolo/plan.h"

namespace vanzer::scribolo {

/// Draws the page at `index` (from 0) of the trip's plan.
[[nodiscard]] paper::Page drawnPage(const Trip& trip, const std::vector<Page>& pages, std::size_t index,
                                    paper::Fonts& fonts);

} // namespace vanzer::scribolo
