// A command of the user: everything that it writes to the archive is stored together, or not at all.
#pragma once

#include <functional>

#include "window/form.h"

namespace vanzer {

/// Runs a handler, with no other inside it: while one runs, in the yields of which the window's events come through,
/// every other command is dropped. When the archive fails, what the command wrote is undone, the user is told, and the
/// buttons are again as they were before it.
void comando(Form& form, const std::function<void()>& handler);

/// Whether a press of the control gets through to a command at work: "&Stop" alone does.
[[nodiscard]] bool stopsWork(const Form& form, const Control& control);

/// The same without a word to the user: throws what the archive throws. `handler` has run to its end if the failure
/// came with the storing.
void storeTogether(Form& form, const std::function<void()>& handler);

} // namespace vanzer
