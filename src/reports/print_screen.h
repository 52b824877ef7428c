// A print from its command to the printer: the options, the choice of the printer, and the two reports.
#pragma once

#include "window/form.h"

namespace vanzer {

/// The options of a print of the schedule, which is calculated first if there is none.
void cmdStampa_Click(Form& form);
void CmdEsegui_Click(Form& form, int index);

/// The options of a print of the guide.
void cmdStampaGuidaCitta_Click(Form& form);
void cmdStampaGuida_Click(Form& form, int index);

/// Offers the printers.
void VisualizzaListaStampanti(Form& form);
/// Prints on the chosen printer, or gives up.
void cmdSelStampante_Click(Form& form, int index);

/// Asks whether the print that is running is to be given up.
void askToInterruptPrint(Form& form);

} // namespace vanzer
