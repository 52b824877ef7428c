// SPDX-License-Identifier: MIT
// Writes the logbook as a PDF file.
#pragma once

#include <QString>

#include "scribolo/trip.h"

namespace vanzer::scribolo {

/// Writes the trip's logbook into the directory and returns the file's absolute path. Throws a Problem on failure; an
/// older file of that name is unchanged then.
QString writePdf(const Trip& trip, const QString& directory);

} // namespace vanzer::scribolo
