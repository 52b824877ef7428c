#include <algorithm>
#include <numeric>

#include "core/columns.h"
#include "core/text.h"
#include "exchange/itn_filter.h"
#include "exchange/route_package.h"
#include "fuzz_target.h"

namespace vanzer::fuzz {

namespace {

using namespace Qt::StringLiterals;

bool same(const TappaImportata& a, const TappaImportata& b) {
    return a.luogo == b.luogo && a.strade == b.strade && a.kmProgressivo == b.kmProgressivo;
}

void checkLegs(const PercorsoImportato& route) {
    promise(route.formato != Pacchetto::Sconosciuto || route.tappe.empty(), "an unknown list gives no legs");
    qint64 km = 0;
    for (const TappaImportata& leg : route.tappe) {
        km += leg.km;
        promise(km == leg.kmProgressivo, "kilometres add up");
        promise(leg.luogo == maiuscolo(Trim(leg.luogo)), "places are trimmed and in capitals");
        promise(leg.strade == Trim(leg.strade), "roads are trimmed");
        promise(leg.traghetto == contains(leg.strade, u"TRAGH"), "a ferry is known by its road");
    }
}

constexpr int nameSize = 30;

/// Places that begin, hold or repeat the stops' names, and some of their own.
std::vector<RigaPercorso> routeThrough(const QStringList& stops) {
    std::vector<RigaPercorso> legs{{u"PARTENZA"_s, {}, 0}};
    int number = 0;
    for (const QString& stop : stops.mid(0, 40)) {
        const QString name = maiuscolo(stop);
        const QString places[] = {name, name + u" NORD"_s, u"USCITA "_s + name, u"INGRESSO IN "_s + name, u"BIVIO"_s};
        legs.push_back({places[number % 5], u"A%1"_s.arg(number % 7), number});
        ++number;
    }
    legs.push_back({u"ARRIVO"_s, u"SS9"_s, 9});
    return legs;
}

/// The rule of the marks, row by row.
QStringList markedOneByOne(const std::vector<RigaPercorso>& legs, const QStringList& stops) {
    QStringList places;
    for (const RigaPercorso& leg : legs)
        places << leg.luogo;
    for (qsizetype n = 0; n < stops.size(); ++n) {
        QString name = stops[n];
        if (name.isEmpty())
            continue;
        auto found = std::ranges::find_if(
            places, [&](const QString& place) { return !place.contains(u"[0") && iniziaCon(place, name); });
        if (found == places.end()) {
            Colonne columns;
            SeparaColonne(name, columns);
            QString longest;
            for (int i = 1; i <= columns.numero; ++i)
                longest = columns(i).size() > longest.size() ? columns(i) : longest;
            if (!longest.isEmpty())
                found = std::ranges::find_if(places, [&](const QString& place) { return contains(place, longest); });
        }
        if (found != places.end())
            *found += u" ["_s + Zero(static_cast<double>(n + 1), 5) + u']';
    }
    return places;
}

void checkFolded(const std::vector<RigaPercorso>& legs, const std::vector<RigaRimasta>& left) {
    int last = 0;
    int km = 0;
    for (const RigaRimasta& leg : left) {
        promise(leg.riga > last && leg.riga <= static_cast<int>(legs.size()), "legs stay in their order");
        last = leg.riga;
        km += leg.cella.km;
        const qsizetype bracket = leg.cella.luogo.indexOf(u'[');
        promise(bracket <= nameSize, "a name keeps to its width");
    }
    const int driven = std::accumulate(legs.begin(), legs.begin() + last, 0,
                                       [](int sum, const RigaPercorso& leg) { return sum + leg.km; });
    promise(km == driven, "no kilometre is lost before the last leg that stays");
}

} // namespace

void readRoutePackage(const QByteArray& input) {
    const PercorsoImportato route = readPackage(input);
    checkLegs(route);
    if (route.formato == Pacchetto::Sconosciuto || input.contains('\r'))
        return;
    const PercorsoImportato again = readPackage(QByteArray(input).replace("\n", "\r\n"));
    promise(std::ranges::equal(route.tappe, again.tappe, same), "line ends don't matter");
}

void readStopFile(const QByteArray& input) {
    const QStringList stops = readDestinations(input).mid(0, 500);
    std::vector<RigaPercorso> legs = routeThrough(stops);
    const QStringList expected = markedOneByOne(legs, stops);
    markDestinations(legs, stops);
    for (std::size_t i = 0; i < legs.size(); ++i)
        promise(legs[i].luogo == expected[static_cast<qsizetype>(i)], "every stop marks the leg that the rule names");
    checkFolded(legs, foldLegs(legs, nameSize));
}

} // namespace vanzer::fuzz
