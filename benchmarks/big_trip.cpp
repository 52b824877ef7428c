#include "big_trip.h"

#include <stdexcept>

#include "core/text.h"
#include "itinerary/leg_table_screen.h"
#include "window/command.h"

namespace vanzer::bench {

namespace {

QString place(int i) {
    return QStringLiteral("Luogo numero ") + Zero(i, 5);
}

} // namespace

BigTrip::BigTrip(int legs)
    : legs_(legs),
      session_({.directory = directory_.path(), .decimalMark = u'.', .versione = QStringLiteral("bench")}) {
    session_.clock.set(QDateTime(QDate(2003, 6, 21), QTime(8, 30)));
    session_.start();
    form().cmdNuovo.click();
    form().txtLocalita.type(QStringLiteral("VIAGGIO LUNGO"));
    form().txtNazione.type(QStringLiteral("EUROPA"));
    answer(rispostaSi);
    form().cmdSalva.click();
    storeGuide();
    storeLegs();
    if (form().stato.NumeroTappe != legs_)
        throw std::runtime_error("the trip could not be stored");
}

void BigTrip::storeLegs() {
    comando(form(), [this] {
        Grid& grid = form().mfgTab;
        {
            const SenzaRidisegno quiet(grid);
            grid.setRows(legs_ + 2);
            for (int i = 1; i <= legs_; ++i) {
                grid.setCell(i, 1, place(i) + (i == 1 ? QStringLiteral(" [Start]") : QString()));
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

void BigTrip::storeGuide() {
    comando(form(), [this] {
        form().archivio.StringaSQL = QStringLiteral("SELECT * FROM GuidaCitta");
        form().archivio.RecordSetImposta(0, store::GuidaCitta);
        store::Recordset& guide = form().archivio.Rs(store::GuidaCitta);
        for (int i = 1; i <= legs_; ++i) {
            guide.AddNew();
            guide.scrive("Localita", place(i));
            guide.scrive("CodiceGuida", Zero(i % 9 + 1, 2));
            guide.scrive("Gruppo", QString());
            guide.scrive("Descrizione", QStringLiteral("Cosa da vedere %1").arg(i));
            guide.scrive("TempoSosta", i % 4 == 0 ? QStringLiteral("00:00") : QStringLiteral("00:15"));
            guide.scrive("FlagVisto", QStringLiteral("0"));
            guide.Update();
        }
    });
}

void BigTrip::wantTheImpossible() {
    form().cmbGiorni.setText(QStringLiteral("997"));
}

} // namespace vanzer::bench
