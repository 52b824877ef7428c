// SPDX-License-Identifier: MIT
// The "?" buttons of the window: each shows its message and changes nothing.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Explains the commands of the window.
void cmdHelpGenerico_Click(Form& form);
/// Explains the method, from the data of a trip to its schedule.
void cmdHelpTotale1_Click(Form& form);
/// Explains the data of the destination.
void cmdHelpTotale2_Click(Form& form);
/// Explains day times and rests.
void cmdHelpTt_Click(Form& form);
/// Explains the fields of a leg.
void cmdHelpKm_Click(Form& form);
/// Explains the leg editor's buttons: 0 to 3 are its lines of buttons, 4 is the routes of other packages.
void cmdHelpItin_Click(Form& form, int index);
/// Explains how to copy a stretch.
void cmdHelpDuplica_Click(Form& form);
/// Explains export and import.
void cmdHelpExport_Click(Form& form);
/// Explains the guide editor: 0 its buttons, 1 its fields.
void cmdHelpGuida_Click(Form& form, int index);

} // namespace vanzer
