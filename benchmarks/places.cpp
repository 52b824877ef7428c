// SPDX-License-Identifier: MIT
#include "places.h"

#include <stdexcept>

#include <QFile>

#include "core/text.h"

namespace vanzer::bench {

namespace {

constexpr int longestName = 20; ///< leaves room for " [Start]"

std::vector<Place> readPlaces() {
    QFile file(QStringLiteral(VANZER_PLACES));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("the list of places can't be read");
    std::vector<Place> places;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        const QString name = line.section(u'\t', 0, 0);
        // Names with the separator letters of an exchange file are left out, since a file can't hold them.
        const bool separates = name.contains(QChar(0xff)) || name.contains(QChar(0xfe)) || name.contains(QChar(0xfd)) ||
                               name.contains(QChar(0xdd)) || name.contains(QChar(0xde));
        if (name.size() <= longestName && !separates)
            places.push_back({name, line.section(u'\t', 1, 1)});
    }
    return places;
}

QString shortened(const QString& name) {
    for (const QStringView saint : {u"San ", u"Santa ", u"Saint-", u"Sankt "}) {
        if (name.startsWith(saint))
            return QStringLiteral("S. ") + name.mid(saint.size());
    }
    return name;
}

} // namespace

const std::vector<Place>& allPlaces() {
    static const std::vector<Place> places = readPlaces();
    return places;
}

QString asWritten(const Place& place, Chance& chance) {
    QString name = chance.oneIn(4) ? shortened(place.name) : place.name;
    if (chance.oneIn(3))
        name = maiuscolo(name);
    if (chance.oneIn(12) && name.size() + 5 <= longestName)
        name += QStringLiteral(" (") + place.country + u')';
    return name;
}

} // namespace vanzer::bench
