// The pages of the logbook, drawn. Nothing here knows a file or a printer.
#pragma once

#include "scribolo/plan.h"

class QPainter;

namespace vanzer::scribolo {

/// Draws the page at `index` (from 0) of the trip's plan on a painter whose viewport is the whole A4 sheet.
void drawPage(QPainter& painter, const Trip& trip, const std::vector<Page>& pages, std::size_t index);

} // namespace vanzer::scribolo
