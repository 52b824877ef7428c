// The trip as a calendar that other programs read: iCalendar (RFC 5545), times without a zone, since a traveller's
// clock is the local one wherever the trip goes.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include "schedule/time_line.h"

namespace vanzer {

/// An event for each drive, each stop (one, if it lasts several days) and each night. An event keeps its identifier
/// when hours or other legs change: it is made of the trip's name, the kind, the place or stop, and which of its kind
/// there it is. `now` is when the file is made.
[[nodiscard]] QByteArray calendario(const QString& trip, const LineaDelTempo& line, const QDateTime& now);

} // namespace vanzer
