// The calculation in the window: preparation, tests, fitting, closing.
#pragma once

#include "schedule/simulation.h"
#include "window/form.h"

namespace vanzer {

/// Calculates, or gives up a finished schedule, by the caption of the button.
void cmdCalcola_Click(Form& form);
/// Calculates from the leg editor.
void cmdRicalcola_Click(Form& form);
/// What a schedule is calculated for: to be looked at, with what came of a wanted number of days, or to be printed.
enum class ScopoCalcolo { Vista, Stampa };
void CalcolaViandoria(Form& form, ScopoCalcolo purpose = ScopoCalcolo::Vista);

/// What a test goes by, from the variables and the lists as they stand.
[[nodiscard]] ParametriSimulazione parametriSimulazione(const Form& form);

} // namespace vanzer
