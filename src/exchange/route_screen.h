// Routes from planners in the window: a route list becomes the legs of an empty itinerary, and a stop file folds them
// down to the real stops. Nothing reaches the archive before the user saves.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Asks for a route list and reads it, if there are no legs yet. A file of no known shape changes
/// nothing.
void cmdMapPoint_Click(Form& form);

/// Asks for a stop file and folds the legs down to its stops; totals are left to the next calculation.
void cmdSelezionaMete_Click(Form& form);

} // namespace vanzer
