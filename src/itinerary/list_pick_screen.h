// SPDX-License-Identifier: MIT
// A choice in the list of places, for the leg editor and the guide.
#pragma once

#include "window/form.h"

namespace vanzer {

void cmbRicercaTappa_Click(Form& form);

} // namespace vanzer
