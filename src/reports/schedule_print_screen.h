// SPDX-License-Identifier: MIT
// The print of the schedule: pages, text files, logbook forms.
#pragma once

#include "window/form.h"

namespace vanzer {

inline constexpr QStringView fileTabella = u"Vanztabl.txt";

/// The full path of a file in the program's directory, as this platform shows paths.
[[nodiscard]] QString percorsoMostrato(const Form& form, QStringView file);

void StampaDellItinerario(Form& form);

} // namespace vanzer
