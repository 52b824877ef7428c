// SPDX-License-Identifier: MIT
// The program's entry from outside: makes and opens a window, and serves requests that don't come from a control.
#pragma once

#include <memory>

#include "startup/opening.h"
#include "startup/wiring.h"

namespace vanzer {

/// Makes the window with its wiring and the current trip. The window is left at once if the archive can't be opened.
[[nodiscard]] std::unique_ptr<Form> startWindow(const Ambiente& surroundings, Ports& ports);

/// Offers the trips of a file that the program was started with. Runs as a command of the user.
void openTripsOf(Form& form, const QString& path);

/// Whether a file for other programs may have that name. Returns the reason against it, as the end of a sentence that
/// begins with "Il file …". Empty if the name may be used.
[[nodiscard]] QString nomeRiservato(const Form& form, const QString& path);

} // namespace vanzer
