// What the guide needs before it is opened: its categories, and places without brackets.
#pragma once

#include "window/form.h"

namespace vanzer {

/// The stored categories into the list of the editor and into the window's tables. Categories that the archive lacks
/// are added at its end; they come into the lists with the next start.
void CaricaTipiGuida(Form& form);

/// A part in brackets behind the place of a guide entry goes.
void RipulisceLuoghiGuida(Form& form);

} // namespace vanzer
