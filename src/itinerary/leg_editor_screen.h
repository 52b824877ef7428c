// The leg editor in the window: the fields always mirror the current row; nothing reaches the archive before a save.
#pragma once

#include "window/form.h"

namespace vanzer {

/// The road type whose option is on: "A", "S", "P" or "L".
[[nodiscard]] QString strTipoStrada(const Serie<OptionButton>& options);

/// The road that the field shows of a row: one without a road takes on that of the row above.
[[nodiscard]] QString stradaMostrata(const Grid& grid, int row);
/// The stop in its fields, gg:hh:mm.
[[nodiscard]] QString sostaDigitata(const Form& form);

/// Enters the mode.
void cmdItinerario_Click(Form& form);
/// Brings the fields up to date and sets the buttons; opens the frame if that was asked for. Legs that a schedule had
/// replaced come back first.
void AttivitaInserimentoItinerario(Form& form);
/// The schedule makes room for the legs again: the destination can be changed, all commands are on.
void unlockLegs(Form& form);
/// The legs that a schedule has replaced come back into the table, saved or not, with their totals.
void RimetteTappe(Form& form);

/// Tidies the table's length, refreshes the fields from the current row, sets the buttons that depend on it.
void AggiornaNumeroRiga(Form& form);
/// From the third row on, while the frame is open: whether typed kilometres above the running total of the row above
/// are a running total themselves. On by itself where they can be, unless the user has switched it off.
void showRunningKm(Form& form);
/// The user's choice holds until the next one.
void chkKm_Click(Form& form);
/// After a change of row: all of the above.
void AggiornaTabellaRigaCorrenteItinerario(Form& form);

void cmdInserisce_Click(Form& form);
/// Takes "[Start]" (0) or "[End]" (1) from every row.
void CancellaFlagStartEnd(Form& form, int which);
/// Opens n blank rows at the current one.
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
