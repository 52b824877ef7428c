// SPDX-License-Identifier: MIT
// Road types for a run of legs, in the window: the frame beside the table and its five buttons.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Enters the mode in which road types are assigned.
void cmdModStrada_Click(Form& form);
/// Makes the current row the first (0) or last leg (1), assigns (2), leaves (3), saves (4).
void cmdTappaSEl_Click(Form& form, int i);
/// Leaves the mode. The table stays as it is. Asks whether to store what was assigned; returns false if it was to be
/// stored and can't be.
[[nodiscard]] bool closeStretch(Form& form);
/// A click on a row of the table while legs are assigned one by one: that row is the whole stretch.
void chooseSingleLeg(Form& form, int riga);

} // namespace vanzer
