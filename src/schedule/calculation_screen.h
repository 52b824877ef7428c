// The calculation in the window: preparation, tests, fitting, closing.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Calculates, or gives up a finished schedule, by the caption of the button.
void cmdCalcola_Click(Form& form);
/// Calculates from the leg editor.
void cmdRicalcola_Click(Form& form);
/// The calculation; slot 0 of the columns says who asked for it.
void CalcolaViandoria(Form& form);

} // namespace vanzer
