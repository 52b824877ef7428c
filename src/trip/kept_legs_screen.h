// SPDX-License-Identifier: MIT
// The legs in the window, compared with the stored ones.
#pragma once

#include "core/draft.h"
#include "window/form.h"

namespace vanzer {

/// Notes that the legs in the table are stored. Does nothing in a script, which is never asked to save.
void rememberLegs(Form& form);

/// The trip's legs as they are now, also while a schedule fills the table. While the table shows the guide, these are
/// the stored legs.
[[nodiscard]] TappeTenute tappeInVista(const Form& form);

/// Whether the legs in the window differ from the stored ones. Counts legs that a schedule has replaced as well.
[[nodiscard]] bool tappeCambiate(const Form& form);

/// Replaces the table's rows by these legs, as not stored, and works out their totals.
void putLegs(Form& form, const TappeTenute& legs);

} // namespace vanzer
