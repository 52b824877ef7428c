// The window's state as it is answered.
#pragma once

#include <QJsonObject>

#include "store/archive.h"
#include "toolkit/grid.h"
#include "window/form.h"

namespace vanzer::batch {

/// The working state, each variable by its own name.
[[nodiscard]] QJsonObject variables(const Form& form);
/// What every control has and what its kind has.
[[nodiscard]] QJsonObject controlState(const Control& control);
/// The cells, without empty ones at the end of a row and empty rows at the end.
[[nodiscard]] QJsonObject gridState(const Grid& grid);
/// How wide its columns are (twips, 0 for a hidden one), and where their texts stand.
[[nodiscard]] QJsonObject gridColumns(const Grid& grid);
[[nodiscard]] QJsonObject records(const store::TabellaLetta& table);

} // namespace vanzer::batch
