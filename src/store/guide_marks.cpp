#include "store/guide_marks.h"

namespace vanzer::store {

SegniGuida::Voci SegniGuida::unused(const VociGuida& entries) {
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

} // namespace vanzer::store
