// SPDX-License-Identifier: MIT
// Connects the form's controls with their handlers, and the signals between the rooms.
#pragma once

#include <memory>

#include "window/form.h"

namespace vanzer {

/// Makes the window, wired and laid out but empty. A view can be tied to it before anything is loaded.
[[nodiscard]] std::unique_ptr<Form> nuovaFinestra(const Ambiente& surroundings, Ports& ports);

/// The version of this build: "1.0.0".
[[nodiscard]] QString versioneProgramma();

} // namespace vanzer
