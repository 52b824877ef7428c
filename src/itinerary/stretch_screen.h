// Road types for a run of legs, in the window: the frame beside the table, and its five buttons.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Enters the mode.
void cmdModStrada_Click(Form& form);
/// Current row as first leg (0) or as last one (1), assign (2), leave (3), save (4).
void cmdTappaSEl_Click(Form& form, int i);
/// Leaves the mode, asking for what was assigned and leaving the table as it is; false if it was to be stored and
/// can't be.
[[nodiscard]] bool closeStretch(Form& form);
/// A click on a row of the table while every leg is worked by itself: the row is the stretch.
void chooseSingleLeg(Form& form, int riga);

} // namespace vanzer
