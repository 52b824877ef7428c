// SPDX-License-Identifier: MIT
// The texts of the help: one message for each thing that a "?" button explains. Lines are separated by carriage return
// and line feed. Blanks at the beginning of a line align it with the text above.
#pragma once

#include <QString>

namespace vanzer {

/// What the commands of the window do.
[[nodiscard]] QString aiutoComandi();
/// How to make a schedule, from the first data to the printed page.
[[nodiscard]] QString aiutoMetodo();
/// The data of a destination.
[[nodiscard]] QString aiutoDatiMeta();
/// Day times, rests, and their defaults.
[[nodiscard]] QString aiutoTempiTecnici();
/// The fields of a leg.
[[nodiscard]] QString aiutoCampiTappa();
/// The buttons in one line of the leg editor, 0 to 3.
[[nodiscard]] QString aiutoPulsantiTappa(int line);
/// Routes of other packages.
[[nodiscard]] QString aiutoAltriPacchetti();
/// Copying a stretch of another destination.
[[nodiscard]] QString aiutoCopiaTratto();
/// Export and import of destinations.
[[nodiscard]] QString aiutoImportExport();
/// The buttons of the guide editor.
[[nodiscard]] QString aiutoPulsantiGuida();
/// The fields of a guide entry.
[[nodiscard]] QString aiutoCampiGuida();

} // namespace vanzer
