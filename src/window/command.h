// SPDX-License-Identifier: MIT
// Runs commands of the user. All that a command writes to the archive is stored together, or not at all.
#pragma once

#include <functional>

#include "window/form.h"

namespace vanzer {

/// Runs a handler. Commands don't nest: while one runs, any other that comes in during a yield is dropped. If the
/// archive fails, undoes what the command wrote, tells the user and restores the buttons.
void comando(Form& form, const std::function<void()>& handler);

/// True if a press of the control reaches a running command. Only "&Stop" does.
[[nodiscard]] bool stopsWork(const Form& form, const Control& control);

/// As comando(), but tells the user nothing and throws StoreError. If the commit failed, `handler` has run to its end.
void storeTogether(Form& form, const std::function<void()>& handler);

} // namespace vanzer
