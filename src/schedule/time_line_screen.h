// SPDX-License-Identifier: MIT
// The schedule in the table as a line of time.
#pragma once

#include <memory>

#include "schedule/simulation.h"
#include "schedule/time_line.h"
#include "schedule/working_rows.h"
#include "window/form.h"

namespace vanzer {

/// A schedule, and the data that it was made from.
struct ViandoriaMostrata {
    std::shared_ptr<const RigheDiLavoro> lavoro;
    Viandoria viandoria;
    ParametriSimulazione parametri;
};

/// The line of the schedule in the table. Empty while the table shows no schedule.
[[nodiscard]] LineaDelTempo lineaMostrata(const Form& form);

/// Shows the picture over the table, or closes it.
void cmdLinea_Click(Form& form);

} // namespace vanzer
