// SPDX-License-Identifier: MIT
// The leg editor in the window. Its fields mirror the current row. The archive doesn't change before a save.
#pragma once

#include "window/form.h"

namespace vanzer {

/// The letter of the chosen road type: "A", "S", "P" or "L".
[[nodiscard]] QString strTipoStrada(const Serie<OptionButton>& options);

/// The road that the field shows for a row. A row without a road takes that of the row above.
[[nodiscard]] QString stradaMostrata(const Grid& grid, int row);
/// The stop in the editor's fields, gg:hh:mm.
[[nodiscard]] QString sostaDigitata(const Form& form);

/// Enters the mode in which legs are edited.
void cmdItinerario_Click(Form& form);
/// Fills the fields, sets the buttons, and opens the frame if that was asked for. Legs that a schedule had replaced
/// come back first.
void AttivitaInserimentoItinerario(Form& form);
/// Gives up the schedule's state: the destination can be changed and all commands are enabled.
void unlockLegs(Form& form);
/// Puts the legs that a schedule had replaced back into the table, saved or not, with their totals.
void RimetteTappe(Form& form);

/// Tidies the table's length, fills the fields from the current row, and sets the buttons that depend on it.
void AggiornaNumeroRiga(Form& form);
/// Sets the option that takes typed kilometres for a running total if they exceed the row above's total. It shows from
/// the third row on while the frame is open. It is on wherever it applies, unless the user has switched it off.
void showRunningKm(Form& form);
/// Keeps the user's choice until the next one.
void chkKm_Click(Form& form);
/// Does all of the above after a change of row.
void AggiornaTabellaRigaCorrenteItinerario(Form& form);

void cmdInserisce_Click(Form& form);
/// Removes "[Start]" (0) or "[End]" (1) from every row.
void CancellaFlagStartEnd(Form& form, int which);
/// Inserts n blank rows at the current one.
void InserisciRigheItinerario(Form& form, int n);
void cmdAggiunge_Click(Form& form);
void cmdCancella_Click(Form& form);
void cmdCerca_Click(Form& form);
void cmdMemorizza_Click(Form& form);
void cmdFine_Click(Form& form);

void mfgTab_Click(Form& form);
void mfgTab_DblClick(Form& form);
void mfgTab_KeyPress(Form& form, int code);

} // namespace vanzer
