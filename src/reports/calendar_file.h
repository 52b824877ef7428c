// SPDX-License-Identifier: MIT
// The trip as a calendar for other programs, in iCalendar format (RFC 5545). Times have no zone: a traveller's clock
// shows local time wherever the trip goes.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include "schedule/time_line.h"

namespace vanzer {

/// Writes an event for each drive, each stop and each night. A stop of several days is one event. An event keeps its
/// identifier when hours or other legs change: it consists of the trip's name, the kind, the place or stop, and a count
/// of equal ones. `now` is the time when the file is made.
[[nodiscard]] QByteArray calendario(const QString& trip, const LineaDelTempo& line, const QDateTime& now);

} // namespace vanzer
