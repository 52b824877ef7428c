// A command of the user: everything that it writes to the archive is stored together, or not at all.
#pragma once

#include <functional>

#include "window/form.h"

namespace vanzer {

/// Runs a handler. When the archive fails, what the command wrote is undone, the user is told, and the buttons are
/// again as they were before it. A command that runs inside another one's event yield belongs to that one.
void comando(Form& form, const std::function<void()>& handler);

/// The same without a word to the user: throws what the archive throws. `handler` has run to its end if the failure
/// came with the storing.
void memorizzaInsieme(Form& form, const std::function<void()>& handler);

} // namespace vanzer
