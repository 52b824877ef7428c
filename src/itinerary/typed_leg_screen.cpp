// SPDX-License-Identifier: MIT
#include "itinerary/typed_leg_screen.h"

#include "core/leg_columns.h"
#include "core/place_name.h"
#include "core/text.h"
#include "itinerary/leg_editor.h"
#include "itinerary/leg_editor_screen.h"

namespace vanzer {

bool tappaDigitata(const Form& form) {
    const Grid& grid = form.mfgTab;
    const int row = form.stato.RigaCorrente;
    const LuogoConMarche place = splitMarks(grid.cell(row, tappaLuogo));
    const SostaConFine stop = splitStop(grid.cell(row, tappaSosta));
    if (form.txtTappa.text() != place.nome || form.txtNumStrada.text() != stradaMostrata(grid, row) ||
        form.txtKm.text() != Trim(grid.cell(row, tappaKm)) || form.chkEndDay.value() != stop.fineGiornata ||
        sostaDigitata(form) != (stop.durata.isEmpty() ? senzaSosta : QStringView(stop.durata)))
        return true;
    if (place.nome.isEmpty())
        return false;
    const auto type = tipoStrada(grid.cell(row, tappaTipo));
    return form.chkMeta(0).value() != place.start || form.chkMeta(1).value() != place.end ||
           (type && !form.optStrada(*type).value());
}

bool leaveLeg(Form& form) {
    if (!form.interattiva || !form.cmdInserisce.reachable() || !tappaDigitata(form))
        return true;
    const QString place = Trim(form.txtTappa.text());
    const QString leg = place.isEmpty() ? QStringLiteral("La tappa della riga %1").arg(form.stato.RigaCorrente)
                                        : QStringLiteral("La tappa «%1»").arg(place);
    const int answer = form.domanda(leg + QStringLiteral(" è scritta ma non inserita.\n\nInserirla?"),
                                    QStringLiteral("Tappa non inserita"), Pulsanti::SiNoAnnulla);
    if (answer == rispostaSi)
        cmdInserisce_Click(form);
    return answer == rispostaNo || (answer == rispostaSi && !tappaDigitata(form));
}

} // namespace vanzer
