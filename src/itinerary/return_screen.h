// SPDX-License-Identifier: MIT
// The way back to the start, in the window's leg table.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Packs the table and appends the way home. Nothing is stored. The row of the join becomes the current one.
void cmdRitorno_Click(Form& form);

} // namespace vanzer
