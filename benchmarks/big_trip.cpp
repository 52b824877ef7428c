#include "big_trip.h"

#include <stdexcept>

#include "core/text.h"
#include "itinerary/leg_table_screen.h"
#include "window/command.h"

namespace vanzer::bench {

namespace {

std::vector<QString> numberedPlaces(int count) {
    std::vector<QString> places;
    for (int i = 1; i <= count; ++i)
        places.push_back(QStringLiteral("Luogo numero ") + Zero(i, 5));
    return places;
}

std::vector<GuideEntry> oneEntryEach(const std::vector<QString>& places) {
    std::vector<GuideEntry> entries;
    for (int i = 1; const QString& place : places) {
        entries.push_back({place, Zero(i % 9 + 1, 2), QString(), QStringLiteral("Cosa da vedere %1").arg(i),
                           i % 4 == 0 ? QStringLiteral("00:00") : QStringLiteral("00:15")});
        ++i;
    }
    return entries;
}

} // namespace

BigTrip::BigTrip(int legs) : BigTrip(numberedPlaces(legs), oneEntryEach(numberedPlaces(legs))) {}

BigTrip::BigTrip(const std::vector<QString>& places, const std::vector<GuideEntry>& guide)
    : legs_(static_cast<int>(places.size())),
      session_({.directory = directory_.path(), .decimalMark = u'.', .versione = QStringLiteral("bench")}) {
    session_.clock.set(QDateTime(QDate(2003, 6, 21), QTime(8, 30)));
    session_.start();
    form().cmdNuovo.click();
    form().txtLocalita.type(QStringLiteral("VIAGGIO LUNGO"));
    form().txtNazione.type(QStringLiteral("EUROPA"));
    answer(rispostaSi);
    form().cmdSalva.click();
    storeGuide(guide);
    storeLegs(places);
    if (form().stato.NumeroTappe != legs_)
        throw std::runtime_error("the trip could not be stored");
}

void BigTrip::storeLegs(const std::vector<QString>& places) {
    comando(form(), [this, &places] {
        Grid& grid = form().mfgTab;
        {
            const SenzaRidisegno quiet(grid);
            grid.setRows(legs_ + 2);
            for (int i = 1; const QString& place : places) {
                grid.setCell(i, 1, place + (i == 1 ? QStringLiteral(" [Start]") : QString()));
                grid.setCell(i, 2, QStringLiteral("SS%1").arg(i % 300));
                grid.setCell(i, 3, QString::number(5 + i % 16));
                grid.setCell(i, 4, QString(u"ASPL"[i % 4]));
                if (i % 10 == 0)
                    grid.setCell(i, 7, QStringLiteral("00:00:30"));
                ++i;
            }
        }
        MemorizzaTappeItinerario(form());
        CaricaTappeItinerario(form());
    });
}

void BigTrip::storeGuide(const std::vector<GuideEntry>& guide) {
    comando(form(), [this, &guide] {
        form().archivio.StringaSQL = QStringLiteral("SELECT * FROM GuidaCitta");
        form().archivio.RecordSetImposta(0, store::GuidaCitta);
        store::Recordset& records = form().archivio.Rs(store::GuidaCitta);
        for (const GuideEntry& entry : guide) {
            records.AddNew();
            records.scrive("Localita", entry.place);
            records.scrive("CodiceGuida", entry.category);
            records.scrive("Gruppo", entry.group);
            records.scrive("Descrizione", entry.description);
            records.scrive("TempoSosta", entry.time);
            records.scrive("FlagVisto", QStringLiteral("0"));
            records.Update();
        }
    });
}

void BigTrip::wantTheImpossible() {
    form().cmbGiorni.setText(QStringLiteral("997"));
}

} // namespace vanzer::bench
