// SPDX-License-Identifier: MIT
// The first steps: what the window offers while the archive holds no trip, and opening a file of trips.
#pragma once

#include "window/form.h"

namespace vanzer {

void cmdPrimoViaggio_Click(Form& form);
/// Asks for a file and offers its trips.
void cmdImportaViaggi_Click(Form& form);
/// Imports the sample trips that come with the program.
void cmdViaggiEsempio_Click(Form& form);

/// Offers the trips of a file, as the exchange does. The archive may be empty.
void openTripsFile(Form& form, const QString& path);

} // namespace vanzer
