// The first steps: what the window offers while the archive holds no trip, and a file of trips that the user opens.
#pragma once

#include "window/form.h"

namespace vanzer {

void cmdPrimoViaggio_Click(Form& form);
/// Asks for a file and offers its trips.
void cmdImportaViaggi_Click(Form& form);
/// Brings in the trips that come with the program.
void cmdViaggiEsempio_Click(Form& form);

/// Offers the trips of a file, as when it is chosen in the exchange. An archive without trips is enough.
void openTripsFile(Form& form, const QString& path);

} // namespace vanzer
