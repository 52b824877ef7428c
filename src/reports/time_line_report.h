// The line of time on paper: a row for each day of the trip, on one page as long as its days can be told apart there.
#pragma once

#include "reports/sheet.h"
#include "schedule/time_line.h"

namespace vanzer {

/// Draws on the page at hand; a trip of more days goes on over the next ones.
void printTimeLine(Foglio& sheet, const QString& trip, const LineaDelTempo& line, const Piede& foot);

} // namespace vanzer
