// The texts of the help: fixed messages, one for each thing that a "?" button explains. Lines are parted by carriage
// return and line feed; blanks at the beginning of a line put it under the text above.
#pragma once

#include <QString>

namespace vanzer {

/// What the commands of the window do.
[[nodiscard]] QString aiutoComandi();
/// How a schedule comes about, from the first data to the paper.
[[nodiscard]] QString aiutoMetodo();
/// The data of a destination.
[[nodiscard]] QString aiutoDatiMeta();
/// Day times, rests, and the defaults of them.
[[nodiscard]] QString aiutoTempiTecnici();
/// The fields of a leg.
[[nodiscard]] QString aiutoCampiTappa();
/// The buttons of the leg editor in one of its lines, 0 to 3.
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
