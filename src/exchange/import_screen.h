// SPDX-License-Identifier: MIT
// An import: the chosen destinations of a file, their legs, and the guide's entries for the places in the archive.
#pragma once

#include "window/form.h"

namespace vanzer {

struct EsitoImport {
    bool riuscito = false;
    QString testo; ///< the message for the user: the counts, or why nothing was imported
};

/// Imports the destinations of the first list from NomeFileScambio. An import that fails or is cancelled leaves the
/// archive as it was.
[[nodiscard]] EsitoImport readImportFile(Form& form);

} // namespace vanzer
