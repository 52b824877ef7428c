// The guide in the window: the list of the trip's places with their entries in the grid, the frame that edits one entry
// at a time, the search, and the closing.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Opens the guide on the current destination.
void cmdGuidaCitta_Click(Form& form);
/// Fills the grid with the places whose name ends with FiltroGuida (all if it is empty), each followed by its entries.
/// A filter that finds nothing is cleared with a message; a destination without legs closes the guide.
void CreaLaListadellaGuida(Form& form);
/// The current row into the fields. On the row of a place category, group and time stay, ready for the next entry.
void InserisciGuida(Form& form);

void CmdSalvaRiga_Click(Form& form);
/// Stores the fields for the current row: a new entry on the row of a place, a change on the row of an entry. What is
/// missing is told if `avvisa`, else nothing happens.
void SalvaLaRigaGuidaCitta(Form& form, bool avvisa);
void cmdCancellaRiga_Click(Form& form);
/// A category that needs no time has none until one is typed.
void cmbGTipo_Click(Form& form);
/// The row keys store the row and move on, to the group of the next one; every other key writes the short forms out.
void txtGDescr_KeyDown(Form& form, int code);
/// The row keys go on from there as they do in the description.
void txtGGruppo_KeyDown(Form& form, int code);
void txtGDescr_KeyPress(Form& form, int& code);
void txtGGruppo_KeyPress(Form& form, int& code);

/// Filters by the text of the description, or offers the list of the places if there is none.
void cmdFind_Click(Form& form);
void CercaLocalitaGuida(Form& form);
/// Leaves the list of the places with nothing picked.
void RinunciaRicercaGuida(Form& form);
/// Puts the groups in order and goes back to the legs.
void cmdFineInserimento_Click(Form& form);

} // namespace vanzer
