// SPDX-License-Identifier: MIT
// The line of time on paper, with a row for each day. Days share a page as long as their rows are high enough to read.
#pragma once

#include "reports/sheet.h"
#include "schedule/time_line.h"

namespace vanzer {

/// Draws on the current page. A trip of more days continues on the next pages.
void printTimeLine(Foglio& sheet, const QString& trip, const LineaDelTempo& line, const Piede& foot);

} // namespace vanzer
