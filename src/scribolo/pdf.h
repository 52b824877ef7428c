// The logbook as a file.
#pragma once

#include <QString>

#include "scribolo/trip.h"

namespace vanzer::scribolo {

/// Writes the trip's logbook into the directory, aside and then into place: an older file of that name stays as it was
/// when this fails, with a Problem. Returns the file's absolute path.
QString writePdf(const Trip& trip, const QString& directory);

} // namespace vanzer::scribolo
