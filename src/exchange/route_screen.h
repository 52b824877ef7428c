// SPDX-License-Identifier: MIT
// Routes from route planners, in the window. A route list becomes the legs of an empty itinerary. A stop file then
// reduces them to the real stops. The archive doesn't change before the user saves.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Asks for a route list and reads it, if there are no legs yet. Changes nothing if the format is unknown.
void cmdMapPoint_Click(Form& form);

/// Asks for a stop file and reduces the legs to its stops. The totals are updated by the next calculation.
void cmdSelezionaMete_Click(Form& form);

} // namespace vanzer
