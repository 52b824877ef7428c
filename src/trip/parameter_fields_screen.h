// The planning parameters in the window: their lists, the user's defaults, and the checks that keep the clock of the
// day in order.
#pragma once

#include "trip/parameters.h"
#include "window/form.h"

namespace vanzer {

/// Writes a pair of clock lists, the hours first: their change event reads the minutes that still stand there.
void writePair(Form& form, int pair, const QString& hour, const QString& minute);

/// Fills the lists, loads the defaults, puts today and now into the start.
void CaricaComboBox(Form& form);
/// The list of the tolerances, and its first value.
void CaricaRange(Form& form);
/// Today and the present time, cut down to a quarter of an hour, into the start.
void MetteAdesso(Form& form);

/// The defaults into the controls; with mode 2 the standard values, which replace the stored ones.
void CaricaDefaultMeta(Form& form, int modo);
/// The controls become the user's defaults.
void MemorizzaVariabiliMeta(Form& form);

/// Corrects what is out of place and sets the variables from the controls. Repeats until nothing is corrected any more,
/// at most a hundred times.
void ControllaVariabiliConvertite(Form& form);

/// The check, the bounds of the clock values, and their write-back. With `tieniSchermo` false the leg editor goes too.
void Aggiorna(Form& form, bool tieniSchermo);

/// Fits the list of days to the month.
void ImpostaGiorniMeseInizio(Form& form);
/// Shows the week days of start and end.
void MettiGiornoSett(Form& form);

/// The entry of the stops' sources that a stored code means; empty reads as "3".
[[nodiscard]] QString voceSoste(Form& form, const QString& code);

void cmbOra_Change(Form& form, int i);
void cmbInizio_Click(Form& form, int i);
void cmbgiorni_Change(Form& form);

} // namespace vanzer
