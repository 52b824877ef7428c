// SPDX-License-Identifier: MIT
// Exchange between travellers: exports destinations with their legs and the guide to a file, or imports them. Two lists
// stand side by side, and a click moves a destination from one to the other.
#pragma once

#include "exchange/import_screen.h"

namespace vanzer {

void cmdExport_Click(Form& form);
/// Starts the choice: 0 for an export, 1 for an import from a file.
void cmdImportExport_Click(Form& form, int n);
/// Moves the clicked destination to the other list.
void mfgImExp_Click(Form& form, int n);
/// Moves all destinations of list n to the other list.
void cmdTutto_Click(Form& form, int n);
/// 0 exports or imports, 1 leaves.
void cmdImExp_Click(Form& form, int n);

/// Imports all destinations of a file without questions or messages. Then shows the main screen anew.
[[nodiscard]] EsitoImport ImportaTutto(Form& form, const QString& path);

} // namespace vanzer
