// SPDX-License-Identifier: MIT
// A print from its command to the printer: the options, the choice of the printer, and the two reports.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Shows the options for printing the schedule. Calculates the schedule first if there is none.
void cmdStampa_Click(Form& form);
void CmdEsegui_Click(Form& form, int index);

/// Shows the options for printing the guide.
void cmdStampaGuidaCitta_Click(Form& form);
void cmdStampaGuida_Click(Form& form, int index);

/// Shows the list of printers.
void VisualizzaListaStampanti(Form& form);
/// Prints on the chosen printer, or cancels.
void cmdSelStampante_Click(Form& form, int index);

/// Asks the user whether to stop the running print.
void askToInterruptPrint(Form& form);

} // namespace vanzer
