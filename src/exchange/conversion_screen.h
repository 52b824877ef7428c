// The files of an earlier generation brought into the archive, asked for in the window while they are waiting.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Looks for old files; while there are any their button is in view, on where an import is.
void findOldFiles(Form& form);

/// Destinations, itineraries and guide come into the archive beside what it holds; of equal keys the old file's records
/// win. An old file goes only when its records are safely stored; one with a damaged record stays under another name.
void cmdConverte_Click(Form& form);

} // namespace vanzer
