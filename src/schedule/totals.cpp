#include "schedule/totals.h"

#include <QStringList>

#include "core/text.h"

namespace vanzer {

int indiceStrada(QStringView letter) {
    static constexpr QStringView types = u"ASPL";
    if (letter.isEmpty())
        return 0;
    const auto at = types.indexOf(letter, 0, Qt::CaseInsensitive);
    return at < 0 ? 3 : static_cast<int>(at);
}

double tempoTratta(int km, double speed) {
    return speed > 0 ? Int(km / speed * 100 + 0.5) : 0;
}

TotaliItinerario calcolaTotali(const std::vector<Tratto>& legs, const Medie& speeds) {
    TotaliItinerario totals;
    totals.righe.reserve(legs.size());
    for (const Tratto& leg : legs) {
        if (leg.traghetto)
            ++totals.traghetti;
        const auto type = static_cast<std::size_t>(leg.strada);
        const auto time = static_cast<float>(leg.km == 0 ? 0 : tempoTratta(leg.km, speeds[type]));
        for (const std::size_t i : {type, std::size_t{4}}) {
            totals.km[i] += static_cast<float>(leg.km);
            totals.tempo[i] += time;
        }
        totals.righe.push_back({time, totals.km[4]});
    }
    return totals;
}

int giorniMinimi(const QString& drivingTime) {
    return arrotonda(Val(Left(drivingTime, 2))) + (Mid(drivingTime, 4) > u"00:00" ? 1 : 0);
}

QStringList giorniOfferti(int least, bool anyKilometres) {
    QStringList days{QStringLiteral("000")};
    if (!anyKilometres)
        return days;
    for (int i = least; i <= least + 30; ++i)
        days << Zero(i, 3);
    for (int i = 30; i <= 200; i += 10)
        days << Zero(i, 3);
    return days;
}

} // namespace vanzer
