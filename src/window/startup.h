// Start-up: the form's wiring and everything that happens before the user can do something.
#pragma once

#include <memory>

#include "window/form.h"

namespace vanzer {

/// The window, wired and loaded. If the archive can't be opened the user has been told and the window is left at once.
[[nodiscard]] std::unique_ptr<Form> avvia(const Ambiente& surroundings, Ports& ports);

/// The version of this build, "1.0.0".
[[nodiscard]] QString versioneProgramma();

} // namespace vanzer
