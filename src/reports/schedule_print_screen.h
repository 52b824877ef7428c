// The print of the schedule: pages, text files, logbook forms.
#pragma once

#include "window/form.h"

namespace vanzer {

inline constexpr QStringView fileTabella = u"Vanztabl.txt";

/// A file of the program's directory, as paths are shown on this platform.
[[nodiscard]] QString percorsoMostrato(const Form& form, QStringView file);

void StampaDellItinerario(Form& form);

} // namespace vanzer
