// SPDX-License-Identifier: MIT
// A table as comma-separated values (RFC 4180), UTF-8.
#pragma once

#include <QByteArray>

#include "reports/text_files.h"

namespace vanzer {

/// Writes rows 0 to `rows` - 1 with `columns` cells each. Empty rows at the end are left out. A text that a spreadsheet
/// would run as a formula gets an apostrophe in front.
[[nodiscard]] QByteArray valoriSeparati(int rows, int columns, const CellaViandoria& cell);

} // namespace vanzer
