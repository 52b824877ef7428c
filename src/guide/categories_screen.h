// SPDX-License-Identifier: MIT
// Prepares the guide before it opens: its categories, and the places of its entries.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Loads the stored categories into the editor's list and into the window's tables. Categories that the archive lacks
/// are added at its end. They appear in the lists after the next start.
void CaricaTipiGuida(Form& form);

/// Removes a part in brackets from the places of the guide's entries.
void RipulisceLuoghiGuida(Form& form);

} // namespace vanzer
