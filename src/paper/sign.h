// The product's sign.
#pragma once

#include <QString>

namespace vanzer::paper {

/// The PNG file among the program's resources.
[[nodiscard]] QString signFile();

} // namespace vanzer::paper
