// SPDX-License-Identifier: MIT
#include "big_trip.h"

#include <stdexcept>

#include <QFile>

#include "core/place_name.h"
#include "core/text.h"
#include "places.h"
#include "trip/leg_table_screen.h"
#include "window/command.h"

namespace vanzer::bench {

namespace {

constexpr std::size_t known = 50'000; ///< the guide of the big archive has entries for all of these first places

} // namespace

BigTrip::BigTrip(int legs, const QString& folder)
    : legs_(legs),
      session_({.directory = directory_.path(), .decimalMark = u'.', .versione = QStringLiteral("bench")}) {
    QFile::copy(folder + QStringLiteral("/Vanzer.mdb"), file("Vanzer.mdb"));
    session_.clock.set(QDateTime(QDate(2003, 6, 21), QTime(8, 30)));
    session_.start();
    form().cmdNuovo.click();
    form().txtLocalita.type(QStringLiteral("VIAGGIO LUNGO"));
    form().txtNazione.type(QStringLiteral("EUROPA"));
    answer(rispostaSi);
    form().cmdSalva.click();
    storeLegs();
    if (form().stato.NumeroTappe != legs_)
        throw std::runtime_error("the trip could not be stored");
}

void BigTrip::storeLegs() {
    comando(form(), [this] {
        Grid& grid = form().mfgTab;
        {
            const SenzaRidisegno quiet(grid);
            Chance chance(2);
            grid.setRows(legs_ + 2);
            for (int i = 1; i <= legs_; ++i) {
                const Place& place = allPlaces()[static_cast<std::size_t>(i) * 5 % known];
                grid.setCell(i, 1, asWritten(place, chance) + (i == 1 ? QStringLiteral(" [Start]") : QString()));
                grid.setCell(i, 2, QStringLiteral("SS%1").arg(i % 300));
                grid.setCell(i, 3, QString::number(5 + i % 16));
                grid.setCell(i, 4, QString(u"ASPL"[i % 4]));
                if (i % 10 == 0)
                    grid.setCell(i, 7, QStringLiteral("00:00:30"));
            }
        }
        MemorizzaTappeItinerario(form());
        CaricaTappeItinerario(form());
    });
}

std::vector<QString> BigTrip::places() {
    std::vector<QString> names;
    for (int r = 1; r <= legs_; ++r)
        names.push_back(PulisceNomeLocalita(form().mfgTab.cell(r, 1)));
    return names;
}

void BigTrip::reload() {
    comando(form(), [this] { CaricaTappeItinerario(form()); });
}

QByteArray routeList(int rows) {
    QByteArray text = "Time\tkm\tInstruction\n0:00\t0\tDepart Torino\n";
    for (int i = 1; i < rows; ++i) {
        const Place& place = allPlaces()[static_cast<std::size_t>(i) * 5 % known];
        text += "9:00\t" + QByteArray::number(i) + "\tat " + place.name.toUtf8() + ", turn RIGHT onto SS" +
                QByteArray::number(i % 300) + '\n';
    }
    return text;
}

} // namespace vanzer::bench
