// SPDX-License-Identifier: MIT
// The print of the guide.
#pragma once

#include "window/form.h"

namespace vanzer {

void StampaDelleMete(Form& form);

} // namespace vanzer
