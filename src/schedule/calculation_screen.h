// SPDX-License-Identifier: MIT
// The calculation in the window: preparation, tests, fitting, closing.
#pragma once

#include "schedule/simulation.h"
#include "window/form.h"

namespace vanzer {

/// Calculates a schedule, or gives up a finished one. The caption of the button tells which.
void cmdCalcola_Click(Form& form);
/// Calculates from the leg editor.
void cmdRicalcola_Click(Form& form);
/// What a schedule is calculated for. Vista tells the user how the fitting to the wanted days ended; Stampa prints.
enum class ScopoCalcolo { Vista, Stampa };
void CalcolaViandoria(Form& form, ScopoCalcolo purpose = ScopoCalcolo::Vista);

/// The parameters of a test, from the variables and the lists as they are now.
[[nodiscard]] ParametriSimulazione parametriSimulazione(const Form& form);

} // namespace vanzer
