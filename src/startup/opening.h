// Everything that happens before the user can do something: the archive is opened, looked at and copied, the current
// trip comes into the window.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Opens the archive and shows the current trip. If the archive can't be opened the user has been told and the window
/// is left at once.
void loadWindow(Form& form);

} // namespace vanzer
