// The program from outside: a window is made and opened, and what may be asked of it without a control.
#pragma once

#include <memory>

#include "startup/opening.h"
#include "startup/wiring.h"

namespace vanzer {

/// The window, wired and with the current trip in it; left at once if the archive can't be opened.
[[nodiscard]] std::unique_ptr<Form> startWindow(const Ambiente& surroundings, Ports& ports);

/// Offers the trips of a file that the program was opened with; a command of the user.
void openTripsOf(Form& form, const QString& path);

/// Why no file for other programs may have that name, as the end of a sentence that begins with "Il file …"; empty if
/// it is free.
[[nodiscard]] QString nomeRiservato(const Form& form, const QString& path);

} // namespace vanzer
