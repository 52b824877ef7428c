// The form's wiring: which handler answers to which control, and which signals connect the rooms.
#pragma once

#include <memory>

#include "window/form.h"

namespace vanzer {

/// The window, wired and laid out, with nothing in it yet: a view can be tied to it before it is loaded.
[[nodiscard]] std::unique_ptr<Form> nuovaFinestra(const Ambiente& surroundings, Ports& ports);

/// The version of this build, "1.0.0".
[[nodiscard]] QString versioneProgramma();

} // namespace vanzer
