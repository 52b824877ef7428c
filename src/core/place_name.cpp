// SPDX-License-Identifier: MIT
#include "core/place_name.h"

#include "core/text.h"

namespace vanzer {

QString cutAt(const QString& name, QChar mark) {
    const qsizetype at = name.indexOf(mark);
    return at < 0 ? name : Trim(name.left(at));
}

LuogoConMarche splitMarks(const QString& cell) {
    LuogoConMarche place{Trim(cell)};
    const auto cut = [&place](QStringView mark) {
        const int at = posizione(place.nome, mark);
        if (at > 0)
            place.nome = Trim(Left(place.nome, at - 1));
        return at > 0;
    };
    place.start = cut(marcaStart);
    place.end = cut(marcaEnd);
    return place;
}

QString PulisceNomeLocalita(const QString& name) {
    QString s = cutAt(name, u'(');
    if (beginsWith(s, u"near "))
        s = Trim(Mid(s, 5));
    if (beginsWith(s, u"vicino "))
        s = Trim(Mid(s, 7));
    if (beginsWith(s, u"CVL "))
        s = Mid(s, 5);
    s = cutAt(s, u'[');
    return cutAt(s, u'(');
}

QString RiPulisceNomeLocalita(const QString& name) {
    return PrimoMaiuscolo(Trim(cutAt(name, u'[')), false);
}

QString chiaveMeta(const QString& name) {
    return senzaMaiuscole(Trim(cutAt(name, u'(')));
}

} // namespace vanzer
