// The calculation in the window: preparation, tests, fitting, closing.
#pragma once

#include "schedule/simulation.h"
#include "window/form.h"

namespace vanzer {

/// Calculates, or gives up a finished schedule, by the caption of the button.
void cmdCalcola_Click(Form& form);
/// Calculates from the leg editor.
void cmdRicalcola_Click(Form& form);
/// The calculation; slot 0 of the columns says who asked for it.
void CalcolaViandoria(Form& form);

/// What a test goes by, from the variables and the lists as they stand.
[[nodiscard]] ParametriSimulazione parametriSimulazione(const Form& form);

} // namespace vanzer
