// SPDX-License-Identifier: MIT
// The commands of the parameters.
#pragma once

#include "window/form.h"

namespace vanzer {

/// 0 saves the controls as the user's defaults, 1 loads the defaults, 2 restores the standard values.
void cmdDefault_Click(Form& form, int i);

} // namespace vanzer
