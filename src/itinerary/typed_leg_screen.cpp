#include "itinerary/typed_leg_screen.h"

#include "core/text.h"
#include "itinerary/leg_editor.h"
#include "itinerary/leg_editor_screen.h"

namespace vanzer {

namespace {

QString roadShown(const Grid& grid, int row) {
    const QString road = Trim(grid.cell(row, 2));
    return road.isEmpty() && row >= 2 ? Trim(grid.cell(row - 1, 2)) : road;
}

/// The stop as its cell holds it, "*" before the end of a day.
QString stopInFields(const Form& form) {
    QString stop = form.chkEndDay.value() ? QStringLiteral("*") : QString();
    for (int i = 0; i < 3; ++i)
        stop += Zero(Val(form.cmbSosta(i).text()), 2) + (i < 2 ? QStringLiteral(":") : QString());
    return stop;
}

QString stopShown(const QString& cell) {
    QString none = QStringLiteral("00:00:00");
    if (cell.isEmpty())
        return none;
    return cell == u'*' ? cell + none : cell;
}

} // namespace

bool tappaDigitata(const Form& form) {
    const Grid& grid = form.mfgTab;
    const int row = form.stato.RigaCorrente;
    const LuogoConMarche place = separaMarche(grid.cell(row, 1));
    if (form.txtTappa.text() != place.nome || form.txtNumStrada.text() != roadShown(grid, row) ||
        form.txtKm.text() != Trim(grid.cell(row, 3)) || stopInFields(form) != stopShown(grid.cell(row, 7)))
        return true;
    if (place.nome.isEmpty())
        return false;
    const QString letter = Trim(grid.cell(row, 4));
    return form.chkMeta(0).value() != place.start || form.chkMeta(1).value() != place.end ||
           (QStringLiteral("ASPL").contains(letter) && !letter.isEmpty() && letter != strTipoStrada(form.optStrada));
}

bool lasciaTappa(Form& form) {
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
