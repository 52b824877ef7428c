// SPDX-License-Identifier: MIT
// The modes of the window: PulsantiMeta and PulsantiItinerario say which buttons are enabled, and commands apply them
// at their end. Also leaves the program.
#pragma once

#include "window/button_codes.h"
#include "window/form.h"

namespace vanzer {

/// Codes of the buttons while nothing else is going on: all, or those for an empty archive.
[[nodiscard]] QString pulsantiDiBase(const Form& form);

/// Applies PulsantiMeta and PulsantiItinerario to the buttons, and yields.
void AbilitaPulsantiComando(Form& form);

/// Sets PulsantiMeta and applies it.
void AbilitaPulsantiMeta(Form& form, const QString& codes);

/// Called by every command that can change data, with `changing` true: marks the schedule as out of date.
void AttivaFormMeta(Form& form, bool changing);

/// Closes the frames over the grid.
void PulisciFinestre(Form& form);

/// Hides the print options and the choice of the printer, when there is nothing to print any more.
void RinunciaStampa(Form& form);

/// "&Esce" leaves the program; "&Stop" asks whether to stop the running work.
void cmdEsce_Click(Form& form);

} // namespace vanzer
