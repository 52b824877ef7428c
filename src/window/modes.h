// The modes of the window: two texts of two-letter codes say which buttons are on, and every command ends by applying
// them. Also the way out.
#pragma once

#include "window/button_codes.h"
#include "window/form.h"

namespace vanzer {

/// The buttons when nothing else is going on: all of them, or those of an archive without trips.
[[nodiscard]] QString pulsantiDiBase(const Form& form);

/// Applies PulsantiMeta and PulsantiItinerario to the buttons, and yields.
void AbilitaPulsantiComando(Form& form);

/// Sets PulsantiMeta and applies it.
void AbilitaPulsantiMeta(Form& form, const QString& codes);

/// Every command that can change data comes through here with `changing` true: a schedule for older data is void.
void AttivaFormMeta(Form& form, bool changing);

/// Back to the plain window: no frame over the grid.
void PulisciFinestre(Form& form);

/// Takes the options of a print away, and the choice of its printer: there is nothing to be printed any more.
void RinunciaStampa(Form& form);

/// "&Esce" leaves the program, "&Stop" asks the running work to end.
void cmdEsce_Click(Form& form);

} // namespace vanzer
