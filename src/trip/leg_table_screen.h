// The leg table in the window: emptied, loaded from the archive, stored in it.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Empties the table and the totals.
void CancellaMatrice(Form& form);

/// Fills the table with the legs of the current destination.
void CaricaTappeItinerario(Form& form);

/// A run through the guide begins with no mark of use set: shown here, written with the marks of the run at its end.
void SettaAZeroFlaGVisto(Form& form);

/// Replaces the stored legs of the current destination by the table's rows. False if these are more records than a
/// destination takes: the user is told, and what was stored stays.
bool MemorizzaTappeItinerario(Form& form);

/// Deletes the records of a table whose field matches the value, with progress.
void CancellaTabella(Form& form, int table, const QString& field, const QString& value);

} // namespace vanzer
