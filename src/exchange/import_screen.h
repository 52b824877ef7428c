// An import: the chosen destinations of a file, their legs, and of the guide what belongs to the places visited here.
#pragma once

#include "window/form.h"

namespace vanzer {

struct EsitoImport {
    bool riuscito = false;
    QString testo; ///< what the user is told: the counts, or why there are none
};

/// Reads NomeFileScambio for the first list's destinations and stores what comes in. An import that fails or is given
/// up leaves nothing of itself in the archive.
[[nodiscard]] EsitoImport readImportFile(Form& form);

} // namespace vanzer
