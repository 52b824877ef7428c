// SPDX-License-Identifier: MIT
#include "core/guide_entry.h"

#include "core/text.h"
#include "core/time_values.h"

namespace vanzer {

float tempoVoce(const QString& tempoSosta, float visitingDay, LetturaTempo reading) {
    const QStringView time(tempoSosta);
    const bool itinerary = reading == LetturaTempo::Itinerario;
    const bool days = beginsWith(time, u"G");
    if (!days && !itinerary)
        return ghmStringa2Centesimi(tempoSosta, visitingDay);
    const double whole = days ? Val(itinerary ? Mid(time, 2, 1) : time.mid(1)) * static_cast<double>(visitingDay)
                              : Val(Mid(time, 1, 2)) * 100;
    return static_cast<float>(whole + Int(Val(Mid(time, 4, 2)) * 100 / 60 + 0.5));
}

} // namespace vanzer
