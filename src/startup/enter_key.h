// What the Enter key presses where no button has the focus.
#pragma once

#include "window/form.h"

namespace vanzer {

/// In a field of the leg editor or of the guide's the button that takes what was typed there, as long as it isn't
/// taken; else the default button. `focused` has the focus, null for none; the result is null if no button is on.
[[nodiscard]] Button* pulsanteDiInvio(const Form& form, const Control* focused);

} // namespace vanzer
