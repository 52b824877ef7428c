// The legs that stand in the window, against those that are stored.
#pragma once

#include "core/draft.h"
#include "window/form.h"

namespace vanzer {

/// What is in the table counts as stored. Kept for a user only: nobody asks a script.
void rememberLegs(Form& form);

/// The trip's legs as they stand, those that a schedule has replaced too; the stored ones while the table shows the
/// guide.
[[nodiscard]] TappeTenute tappeInVista(const Form& form);

/// Whether legs that can be worked on, or that a schedule has replaced, differ from the stored ones.
[[nodiscard]] bool tappeCambiate(const Form& form);

/// The legs come into the table in place of what is there, not stored, with their totals.
void putLegs(Form& form, const TappeTenute& legs);

} // namespace vanzer
