// SPDX-License-Identifier: MIT
// The bodies of the kinds of pages, each in a file of its own. The logbook draws head and foot.
#pragma once

#include "scribolo/plan.h"
#include "scribolo/sheet.h"

namespace vanzer::scribolo {

/// Where the body of a page begins, below its head.
inline constexpr double bodyTop = 33; // mm

void drawCover(Sheet& sheet, const Trip& trip);
void drawDay(Sheet& sheet);
/// Ruled lines below a title, from `top` to the foot of the page.
void drawNotes(Sheet& sheet, double top, const QString& title);
void drawSummary(Sheet& sheet, const Trip& trip, const Page& page);

} // namespace vanzer::scribolo
