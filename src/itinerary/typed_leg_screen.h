// SPDX-License-Identifier: MIT
// Whether the leg editor's fields hold something that the table doesn't have.
#pragma once

#include "window/form.h"

namespace vanzer {

/// True if the fields differ from the current row. On a row without a place only place, road, kilometres and stop
/// count. The road is compared with that of the row above, and the road type is ignored, since the last choice stays.
[[nodiscard]] bool tappaDigitata(const Form& form);

/// Called when the fields are about to show another row or to close, if a user is at work. Asks whether to put a typed
/// leg into the table, and does so. Returns false if it can't be put there or the user wants to go on editing.
[[nodiscard]] bool leaveLeg(Form& form);

} // namespace vanzer
