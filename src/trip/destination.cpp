// SPDX-License-Identifier: MIT
#include "trip/destination.h"

#include "core/place_name.h"
#include "core/text.h"

namespace vanzer {

QString codiceNuovaMeta(const std::vector<int>& codes) {
    int code = static_cast<int>(codes.size()) + 1;
    if (!codes.empty() && codes.back() != static_cast<int>(codes.size())) {
        code = 1;
        for (const int stored : codes) {
            if (stored != code)
                break;
            ++code;
        }
    }
    return Zero(code, 6);
}

bool stessaMeta(const QString& a, const QString& b) {
    return uguale(Trim(cutAt(a, u'(')), Trim(cutAt(b, u'(')));
}

QStringList elencoRicerca(const QStringList& names) {
    QStringList list;
    QStringList motorways;
    for (const QString& name : names)
        (contains(name, u"autostrada") ? motorways : list) << name;
    return list + motorways;
}

} // namespace vanzer
