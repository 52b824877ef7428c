// SPDX-License-Identifier: MIT
// The planning parameters in the window: their lists, the user's defaults, and the checks that keep the times of a day
// in order.
#pragma once

#include "trip/parameters.h"
#include "window/form.h"

namespace vanzer {

/// Writes a pair of clock lists, the hours first. Their change event still reads the old minutes.
void writePair(Form& form, int pair, const QString& hour, const QString& minute);

/// Fills the lists, loads the defaults, and sets the start to now.
void CaricaComboBox(Form& form);
/// Fills the list of tolerances and selects the first.
void CaricaRange(Form& form);
/// Sets the start to today and the present time, rounded down to a quarter of an hour.
void MetteAdesso(Form& form);

/// Loads the defaults into the controls. With mode 2 it first replaces the stored ones by the standard values.
void CaricaDefaultMeta(Form& form, int modo);
/// Stores the controls as the user's defaults.
void MemorizzaVariabiliMeta(Form& form);

/// Corrects the controls and sets the variables from them. Repeats until nothing needs correction, at most a hundred
/// times.
void ControllaVariabiliConvertite(Form& form);

/// Checks the controls, limits the clock times and writes them back. Unless `tieniSchermo`, closes the leg editor too.
void Aggiorna(Form& form, bool tieniSchermo);

/// Fits the list of days to the month.
void ImpostaGiorniMeseInizio(Form& form);
/// Shows the week days of start and end.
void MettiGiornoSett(Form& form);

/// The entry in the list of stop sources for a stored code. An empty code counts as "3".
[[nodiscard]] QString voceSoste(Form& form, const QString& code);

void cmbOra_Change(Form& form, int i);
void cmbInizio_Click(Form& form, int i);
void cmbgiorni_Change(Form& form);

} // namespace vanzer
