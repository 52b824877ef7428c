// The totals of the legs in the window.
#pragma once

#include "trip/totals.h"
#include "window/form.h"

namespace vanzer {

/// Kilometres of a cell: its number, without the thousands points.
[[nodiscard]] int chilometri(const QString& cell);

/// The speeds as the lists show them.
[[nodiscard]] Medie medieMostrate(const Form& form);

/// Works out kilometres and driving times of the legs in the table: their running columns, the panel of totals and the
/// list of the wanted days. A wanted number of days below what the driving needs is raised to it.
void CalcolaKmTempiItinerario(Form& form);

} // namespace vanzer
