// SPDX-License-Identifier: MIT
// Positions on a sheet.
#pragma once

namespace vanzer {

/// A position in mm, right and down from the sheet's top left corner, or a size in mm.
struct Punto {
    double x = 0;
    double y = 0;
};

} // namespace vanzer
