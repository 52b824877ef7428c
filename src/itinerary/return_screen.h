// The way back to the start, in the window's leg table.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Packs the table and appends the way home to it; nothing is stored. The join becomes the current row.
void cmdRitorno_Click(Form& form);

} // namespace vanzer
