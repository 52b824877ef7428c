// Whether the guide editor's fields hold an entry that the list doesn't.
#pragma once

#include "window/form.h"

namespace vanzer {

/// True if a description is typed and no entry of the marked row's place is as the fields are. Category, group and time
/// alone are no entry: they stay from the row before. Nor is the text that was last searched for, on the row of a
/// place.
[[nodiscard]] bool voceDigitata(const Form& form);

} // namespace vanzer
