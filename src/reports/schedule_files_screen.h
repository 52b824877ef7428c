// SPDX-License-Identifier: MIT
// Files of the schedule for other programs: calendar and table.
#pragma once

#include "window/form.h"

namespace vanzer {

enum class FormatoViandoria { Calendario, Tabella };

/// Writes the schedule in the table to a file. There must be a schedule. Returns the reason of a failure, or an empty
/// text.
[[nodiscard]] QString writeSchedule(const Form& form, FormatoViandoria format, const QString& path);

/// Asks for the file and writes it.
void cmdCalendario_Click(Form& form);
void cmdFoglio_Click(Form& form);

} // namespace vanzer
