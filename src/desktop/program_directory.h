// Where the archive lies.
#pragma once

#include <QString>

namespace vanzer::desktop {

/// The program's directory when it can be written (a copy on a stick), else the user's data directory of the platform,
/// which is made when it isn't there.
[[nodiscard]] QString programDirectory();

} // namespace vanzer::desktop
