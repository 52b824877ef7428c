// SPDX-License-Identifier: MIT
#include "schedule/stops_screen.h"

#include "core/leg_columns.h"
#include "core/text.h"
#include "schedule/stops.h"
#include "store/guide_marks.h"
#include "trip/destination_screen.h"
#include "trip/leg_table_screen.h"
#include "trip/trip_numbers.h"
#include "window/progress.h"

namespace vanzer {

namespace {

/// Adds the guide's times to the stops. True if any stop has grown.
bool addGuideStops(Form& form) {
    Grid& grid = form.mfgTab;
    bool any = false;
    SettaAZeroFlaGVisto(form);
    form.stato.PercentualeTotale = grid.rows() - 1;
    store::SegniGuida guide(form.archivio);
    for (int r = 1; r < grid.rows(); ++r) {
        form.stato.PercentualeCorrente = r;
        AggiornaPercentuale(form);
        if (grid.cell(r, tappaLuogo).isEmpty())
            continue;
        std::vector<QString> times;
        for (const VoceGuida* const entry : guide.usePattern(LikeTesto(grid.cell(r, tappaLuogo))))
            times.push_back(entry->tempoSosta);
        if (times.empty())
            continue;
        grid.setCell(r, tappaSosta, sostaConGuida(grid.cell(r, tappaSosta), times, form.viaggio->OreVisitaGiorno));
        any = true;
    }
    guide.write();
    return any;
}

} // namespace

void cmdTrasferisce_Click(Form& form) {
    const QString question =
        QStringLiteral("Vuoi copiare le soste indicate nella Guida nelle tappe dell'itinerario?\n\n"
                       "I tempi traghetto e riposi non sono influenzati e la\n"
                       "modifica sarà effettiva dopo il salvataggio dell'itinerario.\n\nProcedo?");
    if (form.domanda(question, QStringLiteral("Copia soste Guida -> Itinerario"), Pulsanti::SiNo) == rispostaSi &&
        addGuideStops(form) && form.cmbSoste.text().startsWith(u'3'))
        form.lblAvviso.setCaption(
            QStringLiteral("Con \"3 - Entrambe\" le soste copiate contano due volte: nella guida e nell'itinerario."));
    AzzeraPercentuale(form);
}

void cmdAzzeraSoste_Click(Form& form) {
    const QString question =
        QStringLiteral("Vuoi azzerare le soste indicate nell'itinerario?\n\n"
                       "I tempi traghetto e riposi non sono influenzati e la\n"
                       "cancellazione sarà effettiva dopo il salvataggio dell'itinerario.\n\nProcedo?");
    if (form.domandaPericolosa(question, QStringLiteral("Azzera soste itinerario"), describeTrip(form)) != rispostaSi)
        return;
    for (int r = 1; r < form.mfgTab.rows(); ++r)
        form.mfgTab.setCell(r, tappaSosta, {});
}

} // namespace vanzer
