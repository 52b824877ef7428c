// The "?" buttons of the window: each shows its message and changes nothing.
#pragma once

#include "window/form.h"

namespace vanzer {

/// The commands of the window.
void cmdHelpGenerico_Click(Form& form);
/// The method: from the data of a trip to its schedule.
void cmdHelpTotale1_Click(Form& form);
/// The data of the destination.
void cmdHelpTotale2_Click(Form& form);
/// Day times and rests.
void cmdHelpTt_Click(Form& form);
/// The fields of a leg.
void cmdHelpKm_Click(Form& form);
/// The leg editor's buttons: 0 to 3 the lines of buttons, 4 the routes of other packages.
void cmdHelpItin_Click(Form& form, int index);
/// Copying a stretch.
void cmdHelpDuplica_Click(Form& form);
/// Export and import.
void cmdHelpExport_Click(Form& form);
/// The guide editor: 0 its buttons, 1 its fields.
void cmdHelpGuida_Click(Form& form, int index);

} // namespace vanzer
