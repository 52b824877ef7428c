// Whether the guide editor's fields hold an entry that the list doesn't.
#pragma once

#include "window/form.h"

namespace vanzer {

/// True if a description is typed and no entry of the marked row's place is as the fields are. Category, group and time
/// alone are no entry: they stay from the row before. Nor is the text that was last searched for, on the row of a
/// place.
[[nodiscard]] bool voceDigitata(const Form& form);

/// Before a user, when the fields are about to show another row or to go: asks whether an entry that is typed and not
/// stored is to be stored, and does so. False if it can't be, or the user wants to go on with it. `row` is a row of the
/// list, and still that one when the list is sorted anew.
[[nodiscard]] bool leaveEntry(Form& form, int& row);

} // namespace vanzer
