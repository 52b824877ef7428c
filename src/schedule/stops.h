// SPDX-License-Identifier: MIT
// Adds the guide's times of a place to the stop of its leg.
#pragma once

#include <vector>

#include <QString>

namespace vanzer {

/// The stop (gg:hh:mm) with the times of the entries (hh:mm) added. The gg are days of `visitingDay` hundredths of an
/// hour; 2400 is used if that isn't a possible length of a day. A mark of the end of the day is lost.
[[nodiscard]] QString sostaConGuida(const QString& stop, const std::vector<QString>& times, float visitingDay);

} // namespace vanzer
