// SPDX-License-Identifier: MIT
// The window's state as JSON.
#pragma once

#include <QJsonObject>

#include "store/archive.h"
#include "toolkit/grid.h"
#include "window/form.h"

namespace vanzer::batch {

/// The window's variables, by name.
[[nodiscard]] QJsonObject variables(const Form& form);
/// The properties of a control: those of every control and those of its kind.
[[nodiscard]] QJsonObject controlState(const Control& control);
/// The cells. Empty cells at the end of a row and empty rows at the end are left out.
[[nodiscard]] QJsonObject gridState(const Grid& grid);
/// Widths of the columns (twips, 0 if hidden) and their alignments.
[[nodiscard]] QJsonObject gridColumns(const Grid& grid);
[[nodiscard]] QJsonObject records(const store::TabellaLetta& table);

} // namespace vanzer::batch
