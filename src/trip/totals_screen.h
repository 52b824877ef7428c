// SPDX-License-Identifier: MIT
// The totals of the legs in the window.
#pragma once

#include "trip/totals.h"
#include "window/form.h"

namespace vanzer {

/// The kilometres in a cell. Thousands points are ignored.
[[nodiscard]] int chilometri(const QString& cell);

/// The average speeds that the lists show, km/h.
[[nodiscard]] Medie medieMostrate(const Form& form);

/// Works out kilometres and driving times of the legs in the table. Writes their running columns, the panel of totals
/// and the list of wanted days. Raises the wanted days to the least number that the driving needs.
void CalcolaKmTempiItinerario(Form& form);

} // namespace vanzer
