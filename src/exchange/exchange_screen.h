// Exchange between travellers: destinations with their legs and the guide go out to a file, or come in from one. Two
// lists stand side by side, and a click moves a destination from one to the other.
#pragma once

#include "exchange/import_screen.h"

namespace vanzer {

void cmdExport_Click(Form& form);
/// Starts the choice: 0 of what goes out, 1 of what comes in from a file.
void cmdImportExport_Click(Form& form, int n);
/// The clicked destination goes to the other list.
void mfgImExp_Click(Form& form, int n);
/// The whole list n goes to the other one.
void cmdTutto_Click(Form& form, int n);
/// 0 carries the export or import out, 1 leaves.
void cmdImExp_Click(Form& form, int n);

/// Brings in all destinations of a file with no question and no word; the main screen shows what is there then.
[[nodiscard]] EsitoImport ImportaTutto(Form& form, const QString& path);

} // namespace vanzer
