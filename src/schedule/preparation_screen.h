// The preparation of a calculation from the window's legs and the archive's guide.
#pragma once

#include <memory>

#include "schedule/working_rows.h"
#include "window/form.h"

namespace vanzer {

/// Takes the legs out of the table and keeps them, reads them and the guide into the working rows, shows these in the
/// hidden grid, and marks the guide's entries that were used.
[[nodiscard]] std::shared_ptr<const RigheDiLavoro> PreparaTabellaPerCalcoloViandoria(Form& form);

} // namespace vanzer
