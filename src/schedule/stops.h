// The guide's times of a place, added to the stop of its leg.
#pragma once

#include <vector>

#include <QString>

namespace vanzer {

/// The stop (gg:hh:mm, whose gg are days of `visitingDay` hundredths; 2400 if that is no length of a day) with the
/// entries' times (hh:mm, read as they stand) on top. A mark of the end of the day in it is lost.
[[nodiscard]] QString sostaConGuida(const QString& stop, const std::vector<QString>& times, float visitingDay);

} // namespace vanzer
