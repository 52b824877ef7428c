// Where things stand on a sheet.
#pragma once

namespace vanzer {

/// Position or size on the sheet, mm from its top left corner to the right and down.
struct Punto {
    double x = 0;
    double y = 0;
};

} // namespace vanzer
