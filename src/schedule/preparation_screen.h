// SPDX-License-Identifier: MIT
// Prepares a calculation from the window's legs and the archive's guide.
#pragma once

#include <memory>

#include "schedule/working_rows.h"
#include "window/form.h"

namespace vanzer {

/// Makes the working rows from the legs and the guide, and shows them in the hidden grid. Moves the legs from the table
/// to a kept copy. Marks the guide's entries that were used.
[[nodiscard]] std::shared_ptr<const RigheDiLavoro> PreparaTabellaPerCalcoloViandoria(Form& form);

} // namespace vanzer
