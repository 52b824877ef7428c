// The file of the user's settings, looked at before anything asks for one.
#pragma once

#include <QString>

namespace vanzer::desktop {

/// The first file of settings below a folder that can't be read as one: a pipe or a device, for which the program would
/// wait without end, or too large. Empty if all is well. The names are those of the application.
[[nodiscard]] QString impostazioniIllegibili(const QString& folder);

/// The program works without settings if its file can't be read; what the user must be told then, else nothing.
[[nodiscard]] QString skipUnreadableSettings();

} // namespace vanzer::desktop
