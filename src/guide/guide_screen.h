// SPDX-License-Identifier: MIT
// The guide in the window: the list of the trip's places and their entries, the frame that edits one entry, the search,
// and the way back to the legs.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Opens the guide for the current destination.
void cmdGuidaCitta_Click(Form& form);
/// Fills the grid with the places whose name ends with FiltroGuida, each followed by its entries. An empty filter shows
/// all. If the filter finds nothing, it is cleared with a message. If the destination has no legs, the guide closes.
void CreaLaListadellaGuida(Form& form);
/// Shows the current row in the fields. On a place's row, category, group and time keep their values for the next
/// entry.
void InserisciGuida(Form& form);

void CmdSalvaRiga_Click(Form& form);
/// Stores the fields for the current row. On a place's row this adds an entry, on an entry's row it changes that one.
/// If a field is missing, tells the user if `avvisa`, and else does nothing.
void SalvaLaRigaGuidaCitta(Form& form, bool avvisa);
void cmdCancellaRiga_Click(Form& form);
/// Sets no time for a category that needs none, until the user types one.
void cmbGTipo_Click(Form& form);
/// The row keys store the row and move to the group of the next one. Any other key completes the short forms.
void txtGDescr_KeyDown(Form& form, int code);
/// The row keys work here as in the description.
void txtGGruppo_KeyDown(Form& form, int code);
void txtGDescr_KeyPress(Form& form, int& code);
void txtGGruppo_KeyPress(Form& form, int& code);

/// Filters by the text of the description. If that is empty, offers the list of places.
void cmdFind_Click(Form& form);
void CercaLocalitaGuida(Form& form);
/// Closes the list of places without a choice.
void RinunciaRicercaGuida(Form& form);
/// Sorts the marks of the groups and returns to the legs.
void cmdFineInserimento_Click(Form& form);

} // namespace vanzer
