#include "guide/marks.h"

#include "core/text.h"

namespace vanzer {

SegniGuida::Voci SegniGuida::unused(const store::VociGuida& entries) {
    Voci fresh;
    for (const VoceGuida& entry : entries) {
        if (used_.insert(entry.rowid))
            fresh.push_back(&entry);
    }
    return fresh;
}

SegniGuida::Voci SegniGuida::usaLuogo(const QString& place) {
    return unused(archive_.guida().leggeLuogo(place));
}

SegniGuida::Voci SegniGuida::usaModello(const QString& pattern) {
    if (!pattern.contains(u'*') && !pattern.contains(u'?'))
        return usaLuogo(pattern);
    return unused(archive_.guida().leggeModello(pattern));
}

float tempoVoce(QStringView tempoSosta, float visitingDay) {
    const bool days = iniziaCon(tempoSosta, u"G");
    const double whole =
        days ? Val(Mid(tempoSosta, 2, 1)) * static_cast<double>(visitingDay) : Val(Mid(tempoSosta, 1, 2)) * 100;
    return static_cast<float>(Int(whole + Val(Mid(tempoSosta, 4, 2)) * 100 / 60 + 0.5));
}

} // namespace vanzer
