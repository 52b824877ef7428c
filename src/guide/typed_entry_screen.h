// SPDX-License-Identifier: MIT
// Whether the guide editor's fields hold an entry that the list doesn't have.
#pragma once

#include "window/form.h"

namespace vanzer {

/// True if a description is typed and no entry of the marked row's place equals the fields. Category, group and time
/// alone don't count, as they stay from the row before. On a place's row the text of the last search doesn't count
/// either.
[[nodiscard]] bool voceDigitata(const Form& form);

/// Called when the fields are about to show another row or to close, if a user is at work. Asks whether to store a
/// typed entry, and does so. Returns false if it can't be stored or the user wants to go on editing. `row` is a row of
/// the list; if the list is sorted again, it follows its row.
[[nodiscard]] bool leaveEntry(Form& form, int& row);

} // namespace vanzer
