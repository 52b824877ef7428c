// SPDX-License-Identifier: MIT
// What happens before the user can act: opens, checks and copies the archive, and shows the current trip.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Opens the archive and shows the current trip. If the archive can't be opened, tells the user and leaves the window.
void loadWindow(Form& form);

} // namespace vanzer
