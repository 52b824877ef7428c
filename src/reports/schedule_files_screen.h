// The schedule for other programs: calendar and table.
#pragma once

#include "window/form.h"

namespace vanzer {

enum class FormatoViandoria { Calendario, Tabella };

/// Writes the schedule of the table to a file; the result is the reason of a failure, empty when all went well. There
/// must be a schedule.
[[nodiscard]] QString writeSchedule(const Form& form, FormatoViandoria format, const QString& path);

/// Ask for the file and write it.
void cmdCalendario_Click(Form& form);
void cmdFoglio_Click(Form& form);

} // namespace vanzer
