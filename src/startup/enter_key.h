// SPDX-License-Identifier: MIT
// The button that the Enter key presses if no button has the focus.
#pragma once

#include "window/form.h"

namespace vanzer {

/// In a field of the leg editor or the guide editor this is the button that takes what was typed, if anything new was.
/// Otherwise it is the default button. `focused` is the control with the focus, null for none. Null if no such button
/// is enabled.
[[nodiscard]] Button* pulsanteDiInvio(const Form& form, const Control* focused);

} // namespace vanzer
