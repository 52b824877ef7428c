// The preparation of a calculation from the window's legs and the archive's guide.
#pragma once

#include "schedule/rows.h"
#include "schedule/working_rows.h"
#include "window/form.h"

namespace vanzer {

struct CalcoloPreparato {
    RigheDiLavoro lavoro;
    std::vector<TestiTappa> tappe; ///< by the leg's row in the table
};

/// Reads the legs and the guide into the working rows, shows them in the hidden grid, and marks the guide's entries
/// that were used.
[[nodiscard]] CalcoloPreparato PreparaTabellaPerCalcoloViandoria(Form& form);

} // namespace vanzer
