// SPDX-License-Identifier: MIT
#include "schedule/stops.h"

#include "core/time_values.h"

namespace vanzer {

QString sostaConGuida(const QString& stop, const std::vector<QString>& times, float visitingDay) {
    const float day = visitingDay > 0 ? visitingDay : giornoIntero;
    float sum = ghmStringa2Centesimi(stop, day);
    for (const QString& time : times)
        sum += ghmStringa2Centesimi(time, giornoIntero);
    return ghmCentesimi2Stringa(sum, day);
}

} // namespace vanzer
