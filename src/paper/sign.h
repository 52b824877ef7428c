// SPDX-License-Identifier: MIT
// The product's logo.
#pragma once

#include <QString>

namespace vanzer::paper {

/// Path of its PNG file among the program's resources.
[[nodiscard]] QString signFile();

} // namespace vanzer::paper
