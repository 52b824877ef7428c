// SPDX-License-Identifier: MIT
// Copying a stretch from another destination, in the window. The user picks a destination, then its legs, then the ends
// of the stretch. The archive doesn't change before the user saves.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Lists the destinations that have legs.
void cmdDuplica_Click(Form& form);
/// A click on a destination or on a leg. ModoRicerca tells which of them the list holds.
void mfgCopia_Click(Form& form);
/// A leg marked by key becomes the current one, like a clicked leg.
void mfgCopia_Mark(Form& form);
/// Makes the current leg the stretch's first (0) or last one (1).
void cmdAssegna_Click(Form& form, int i);
/// Inserts the stretch after the current row (0), or cancels (1).
void cmdInsEsegui_Click(Form& form, int i);

} // namespace vanzer
