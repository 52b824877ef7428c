// SPDX-License-Identifier: MIT
#include "big_archive.h"

#include <array>
#include <initializer_list>
#include <stdexcept>
#include <utility>
#include <vector>

#include <QTemporaryDir>

#include "batch/session.h"
#include "core/place_name.h"
#include "core/text.h"
#include "places.h"
#include "window/command.h"

namespace vanzer::bench {

namespace {

using Values = std::initializer_list<std::pair<const char*, QString>>;

class Filler {
  public:
    Filler(Form& form, const Sizes& sizes) : form_(form), sizes_(sizes) {}

    void fill() {
        const std::vector<int> lengths = lengthsOfTrips();
        for (int trip = 0; trip < sizes_.destinations; ++trip)
            addTrip(trip, lengths[static_cast<std::size_t>(trip)]);
        addGuide();
        store::Recordset current = whole(store::MetaCorrente);
        if (current.EOF_())
            current.AddNew();
        else
            current.Edit();
        current.write("MetaCorrente", codeOf(sizes_.destinations / 2));
        current.Update();
    }

  private:
    store::Recordset whole(int table) { return {*form_.archivio.Db(0), {store::TabelleNomi(table), {}, {}}}; }

    static QString codeOf(int trip) { return Zero(trip + 1, 6); }

    static void add(store::Recordset& table, Values values) {
        table.AddNew();
        for (const auto& [field, text] : values)
            table.write(QLatin1StringView(field), text);
        table.Update();
    }

    /// The numbers of legs of all trips: many weekends and a few long trips. Their sum is the wanted number of legs.
    std::vector<int> lengthsOfTrips() {
        const int mean = sizes_.legs / sizes_.destinations;
        std::vector<int> lengths;
        int left = sizes_.legs;
        for (int trip = 0; trip < sizes_.destinations; ++trip) {
            const int length =
                chance_.oneIn(50) ? 4 * mean : mean / 4 + chance_.below(static_cast<std::size_t>(mean) + 1);
            lengths.push_back(Minore(length, left - (sizes_.destinations - trip - 1)));
            left -= lengths.back();
        }
        for (std::size_t trip = 0; left > 0; trip = (trip + 1) % lengths.size(), --left)
            ++lengths[trip];
        return lengths;
    }

    void addTrip(int trip, int legs) {
        const auto& places = allPlaces();
        std::size_t at = static_cast<std::size_t>(chance_.below(places.size()));
        store::Recordset destinations = whole(store::MeteVanzer);
        add(destinations, {{"CodiceMeta", codeOf(trip)},
                           {"Localita", maiuscolo(places[at].name) + u' ' + QString::number(trip + 1)},
                           {"Nazione", places[at].country},
                           {"DataInizio", QStringLiteral("21062003")},
                           {"OraInizio", QStringLiteral("0830")},
                           {"MediaAutostrada", QStringLiteral("90")},
                           {"MediaSuperStrada", QStringLiteral("75")},
                           {"MediaPrincipale", QStringLiteral("60")},
                           {"MediaLocale", QStringLiteral("45")},
                           {"CalcoloSoste", QStringLiteral("3")}});
        store::Recordset table = whole(store::Itinerari);
        for (int leg = 0; leg < legs; ++leg) {
            addLeg(table, trip, leg, legs, places[at]);
            at = (at + 1 + static_cast<std::size_t>(chance_.below(9))) % places.size();
        }
    }

    void addLeg(store::Recordset& table, int trip, int leg, int legs, const Place& place) {
        const bool ferry = chance_.oneIn(40);
        const int type = chance_.below(4);
        QString name = asWritten(place, chance_);
        if (leg == 0)
            name += QStringLiteral(" [Start]");
        else if (leg == legs - 1)
            name += QStringLiteral(" [End]");
        add(table, {{"CodiceMeta", codeOf(trip)},
                    {"Sequenza", Zero(leg + 1, 4)},
                    {"Localita", name},
                    {"Chilometri", QString::number(leg == 0 ? 0 : 3 + chance_.below(120))},
                    {"NomeStrada", (ferry ? QStringLiteral("TRAGHETTO") : road(type)) + u' '},
                    {"TipoStrada", QString(u"ASPL"[type])},
                    {"TempoSosta", chance_.oneIn(8) ? QStringLiteral("00:00:30") : QStringLiteral(" ")},
                    {"SostaGuidaCitta", QStringLiteral(" ")},
                    {"FineGiorno", chance_.oneIn(15) ? QStringLiteral("1") : QStringLiteral("0")}});
    }

    QString road(int type) {
        static const std::array<QString, 4> patterns{QStringLiteral("A%1"), QStringLiteral("E%1"),
                                                     QStringLiteral("SS%1 Statale"), QStringLiteral("SP%1")};
        return patterns[static_cast<std::size_t>(type)].arg(1 + chance_.below(300));
    }

    /// Adds ten entries for every three places. Once the places are used up, each gets more.
    void addGuide() {
        static const std::array<std::array<QString, 4>, 4> kinds{
            {{QStringLiteral("01"), QStringLiteral("A"), QStringLiteral("Duomo"), QStringLiteral("00:15")},
             {QStringLiteral("02"), QStringLiteral(" "), QStringLiteral("Museo civico"), QStringLiteral("00:00")},
             {QStringLiteral("05"), QStringLiteral("B-A"), QStringLiteral("Area di sosta"), QStringLiteral("00:00")},
             {QStringLiteral("07"), QStringLiteral(" "), QStringLiteral("Campeggio"), QStringLiteral("00:00")}}};
        store::Recordset table = whole(store::GuidaCitta);
        const auto& places = allPlaces();
        int left = sizes_.entries;
        for (std::size_t i = 0; left > 0; ++i) {
            const std::size_t round = i / places.size();
            const std::size_t ofPlace = i % 3 == 0 ? 4 : 3;
            for (std::size_t kind = 0; kind < ofPlace && left > 0; ++kind, --left) {
                const auto& [category, group, description, time] = kinds[kind];
                add(table, {{"Localita", PrimoMaiuscolo(places[i % places.size()].name, true)},
                            {"CodiceGuida", category},
                            {"Gruppo", group},
                            {"Descrizione", round == 0 ? description : description + u' ' + QString::number(round)},
                            {"TempoSosta", time},
                            {"FlagVisto", QStringLiteral("0")}});
            }
        }
    }

    Form& form_;
    const Sizes& sizes_;
    Chance chance_{1};
};

} // namespace

void fillArchive(Form& form, const Sizes& sizes) {
    comando(form, [&] { Filler(form, sizes).fill(); });
}

void makeArchive(const QString& folder, const Sizes& sizes) {
    batch::Session session({.directory = folder, .decimalMark = u'.', .versione = QStringLiteral("bench")});
    session.clock.set(QDateTime(QDate(2003, 6, 21), QTime(8, 30)));
    session.start();
    if (session.window() == nullptr || !session.window()->stato.CodiceMeta.isEmpty())
        throw std::runtime_error("the folder has an archive, or none can be made there");
    fillArchive(*session.window(), sizes);
}

QString bigArchive() {
    if (QString told = qEnvironmentVariable("VANZER_BIG_ARCHIVE"); !told.isEmpty())
        return told;
    static const QTemporaryDir own;
    static const bool made = (makeArchive(own.path(), {}), true);
    return made ? own.path() : QString();
}

} // namespace vanzer::bench
