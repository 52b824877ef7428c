// SPDX-License-Identifier: MIT
// The two commands of the leg editor that change all stops at once. They change only the table.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Adds the guide's times of each place to the stop of its leg. Each entry counts once.
void cmdTrasferisce_Click(Form& form);
/// Blanks all stops.
void cmdAzzeraSoste_Click(Form& form);

} // namespace vanzer
