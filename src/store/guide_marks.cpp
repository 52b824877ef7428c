// SPDX-License-Identifier: MIT
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

SegniGuida::Voci SegniGuida::usePlace(const QString& place) {
    return unused(archive_.guida().readPlace(place));
}

SegniGuida::Voci SegniGuida::usePattern(const QString& pattern) {
    if (!pattern.contains(u'*') && !pattern.contains(u'?'))
        return usePlace(pattern);
    return unused(archive_.guida().readPattern(pattern));
}

} // namespace vanzer::store
