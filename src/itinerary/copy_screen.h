// Copying a stretch from another destination, in the window: the list of destinations, that of the legs of one of them,
// and the panel with the stretch. Nothing reaches the archive before the user saves.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Offers the destinations that have legs.
void cmdDuplica_Click(Form& form);
/// A destination, then its legs: what a click means is told by ModoRicerca.
void mfgCopia_Click(Form& form);
/// A leg that is marked by a key is the one at hand, as a clicked one is.
void mfgCopia_Mark(Form& form);
/// The leg at hand as the stretch's first (0) or last one (1).
void cmdAssegna_Click(Form& form, int i);
/// Inserts the stretch behind the current row (0), or gives up (1).
void cmdInsEsegui_Click(Form& form, int i);

} // namespace vanzer
