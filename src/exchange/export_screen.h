// An export: the chosen destinations, their legs and the whole guide into a file.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Writes the second list's destinations to NomeFileScambio, and tells the user how it went.
void writeExchangeFile(Form& form);

} // namespace vanzer
