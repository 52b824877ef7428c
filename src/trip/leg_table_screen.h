// SPDX-License-Identifier: MIT
// The leg table in the window: empty it, load it from the archive, store it.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Empties the table and the totals.
void CancellaMatrice(Form& form);

/// Fills the table with the legs of the current destination.
void CaricaTappeItinerario(Form& form);

/// Shows that the guide's marks of used entries are being reset. The marks themselves are written when the run ends.
void SettaAZeroFlaGVisto(Form& form);

/// Replaces the stored legs of the current destination by the table's rows. If the rows need more records than a
/// destination can have, tells the user, changes nothing and returns false.
bool MemorizzaTappeItinerario(Form& form);

/// Deletes a table's records whose field has that value. Shows the progress.
void CancellaTabella(Form& form, int table, const QString& field, const QString& value);

} // namespace vanzer
