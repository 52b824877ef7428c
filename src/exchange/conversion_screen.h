// SPDX-License-Identifier: MIT
// Converts the files of an earlier version into the archive. A button in the window starts it while there are such
// files.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Looks for old files. If there are any, shows their button wherever the import button is.
void findOldFiles(Form& form);

/// Adds destinations, itineraries and guide to the archive. Where keys are equal, the old file's record replaces the
/// stored one. An old file is removed once all its records are stored. If one of them is damaged, the file is renamed
/// instead.
void cmdConverte_Click(Form& form);

} // namespace vanzer
