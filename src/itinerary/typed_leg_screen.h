// Whether the leg editor's fields hold something that the table doesn't.
#pragma once

#include "window/form.h"

namespace vanzer {

/// True if the fields differ from the current row as it is shown. On a row without a place yet only place, road,
/// kilometres and stop count: the road is carried over from the row above, and the road type stays as last chosen.
[[nodiscard]] bool tappaDigitata(const Form& form);

/// Before a user, when the fields are about to show another row or to go: asks whether a leg that is typed and not in
/// the table is to be put in, and does so. False if it can't be, or the user wants to go on with it.
[[nodiscard]] bool leaveLeg(Form& form);

} // namespace vanzer
