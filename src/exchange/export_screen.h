// SPDX-License-Identifier: MIT
// An export: writes the chosen destinations, their legs and the whole guide to a file.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Writes the destinations of the second list to NomeFileScambio, and tells the user the result.
void writeExchangeFile(Form& form);

} // namespace vanzer
