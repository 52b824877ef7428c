// SPDX-License-Identifier: MIT
// Checks the file of the user's settings before the settings are used.
#pragma once

#include <QString>

namespace vanzer::desktop {

/// Path of the first settings file of the application below a folder that can't be used: a pipe or a device, which
/// could block forever, or a file that is too large. Empty if all are usable.
[[nodiscard]] QString impostazioniIllegibili(const QString& folder);

/// Makes the program work without settings if their file can't be used. Returns the message for the user, in Italian,
/// or an empty text.
[[nodiscard]] QString skipUnreadableSettings();

} // namespace vanzer::desktop
