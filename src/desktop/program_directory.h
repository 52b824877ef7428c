// SPDX-License-Identifier: MIT
// The archive's directory.
#pragma once

#include <QString>

namespace vanzer::desktop {

/// The program's directory if it is writable (a portable copy), else the platform's data directory of the user, which
/// is made if it doesn't exist.
[[nodiscard]] QString programDirectory();

} // namespace vanzer::desktop
