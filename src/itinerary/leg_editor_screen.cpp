// SPDX-License-Identifier: MIT
#include "itinerary/leg_editor_screen.h"

#include <algorithm>
#include <utility>

#include "core/leg_columns.h"
#include "core/place_name.h"
#include "core/text.h"
#include "itinerary/leg_editor.h"
#include "itinerary/stretch_screen.h"
#include "trip/destination_screen.h"
#include "trip/leg_table_screen.h"
#include "trip/totals_screen.h"
#include "window/button_codes.h"
#include "window/changes.h"
#include "window/grid_layouts.h"
#include "window/modes.h"

namespace vanzer {

using namespace Qt::StringLiterals;

namespace {

constexpr int largoAccanto = 10560;
constexpr int righeInVista = 14;

void focusPlace(Form& form) {
    if (form.frmframe(riquadroTappe).visible())
        form.setFocus(form.txtTappa);
}

double kmAbove(const Form& form) {
    return ValoreSenzaPunti(form.mfgTab.cell(form.stato.RigaCorrente - 1, tappaKmProgressivi));
}

/// Makes the table end in exactly one empty row. It never becomes shorter than its least length.
void tidyLength(Form& form) {
    Grid& grid = form.mfgTab;
    StatoFinestra& s = form.stato;
    int rows = grid.rows();
    while (rows > s.RigheMinime && grid.cell(rows - 1, tappaLuogo).isEmpty())
        --rows;
    grid.setRows(rows);
    grid.setRows(rows + 1);
    s.NumeroTappe = grid.rows() - 1;
    while (s.NumeroTappe >= 1 && grid.cell(s.NumeroTappe, tappaLuogo).isEmpty())
        --s.NumeroTappe;
}

void scrollToRow(Form& form) {
    Grid& grid = form.mfgTab;
    const int row = form.stato.RigaCorrente;
    if (row > grid.topRow() + righeInVista)
        grid.setTopRow(row - righeInVista);
    if (row < grid.topRow())
        grid.setTopRow(Maggiore(row, 1));
}

void showPlace(Form& form, const QString& cell) {
    const LuogoConMarche place = splitMarks(cell);
    if (place.start)
        form.chkMeta(0).setValue(true);
    if (place.end)
        form.chkMeta(1).setValue(true);
    form.txtTappa.setText(place.nome);
}

/// Selects the option of a row's road type. On a row without one the last choice stays.
void showRoadType(Form& form, const QString& cell) {
    if (const auto type = tipoStrada(cell))
        form.optStrada(*type).setValue(true);
}

void showStop(Form& form, const QString& cell) {
    const SostaConFine stop = splitStop(cell);
    form.chkEndDay.setValue(stop.fineGiornata);
    for (int i = 0; i < 3; ++i)
        form.cmbSosta(i).setText(Mid(stop.durata, 1 + 3 * i, 2));
}

void showRow(Form& form) {
    const Grid& grid = form.mfgTab;
    const int row = form.stato.RigaCorrente;
    showPlace(form, grid.cell(row, tappaLuogo));
    form.txtNumStrada.setText(stradaMostrata(grid, row));
    form.txtKm.setText(Trim(grid.cell(row, tappaKm)));
    form.stato.KmDifferenza.clear();
    if (!form.stato.ModoGuida)
        showRoadType(form, grid.cell(row, tappaTipo));
    showStop(form, grid.cell(row, tappaSosta));
}

/// Tells the user why a row is refused. True if it is.
bool refused(Form& form, Rifiuto reason) {
    const QString impossible = QStringLiteral("Impossibile:\n");
    if (reason == Rifiuto::KmTroppi || reason == Rifiuto::KmELuogo)
        form.refuse(impossible + QStringLiteral("Indica un valore compreso tra 1 e 999"));
    if (reason == Rifiuto::LuogoMancante || reason == Rifiuto::KmELuogo)
        form.refuse(impossible + QStringLiteral("Indica il nome della località!"));
    if (reason == Rifiuto::NienteDaSegnare)
        form.refuse(QStringLiteral("Chilometri (o sosta): dato obbligatorio!"), QStringLiteral("Dato obbligatorio"));
    return reason != Rifiuto::Nessuno;
}

void clearMarkBoxes(Form& form) {
    form.chkMeta(0).setValue(false);
    form.chkMeta(1).setValue(false);
}

void writeRow(Form& form, const TappaControllata& row) {
    Grid& grid = form.mfgTab;
    const int r = form.stato.RigaCorrente;
    if (r >= grid.rows())
        grid.setRows(r + 2);
    if (form.chkMeta(0).value())
        CancellaFlagStartEnd(form, 0);
    if (form.chkMeta(1).value())
        CancellaFlagStartEnd(form, 1);
    clearMarkBoxes(form);
    grid.setCell(r, tappaNumero, QString::number(r));
    grid.setCell(r, tappaLuogo, row.luogo);
    grid.setCell(r, tappaStrada, form.txtNumStrada.text());
    grid.setCell(r, tappaKm, form.txtKm.text());
    grid.setCell(r, tappaTipo, row.lettera);
    grid.setCell(r, tappaSosta, row.sosta);
}

/// False for kilometres that stand in the field as they stand in the row. Also false for a difference that was put into
/// the field when the row was refused, if a user is at work.
bool kmAreTotal(const Form& form) {
    const QString typed = Trim(form.txtKm.text());
    const QString own = Trim(form.mfgTab.cell(form.stato.RigaCorrente, tappaKm));
    const bool made = form.interattiva && typed == form.stato.KmDifferenza;
    return form.chkKm.value() && typed != own && !made;
}

void reloadDestination(Form& form) {
    RicaricaItinerario(form);
    form.stato.RigaCorrente = 1;
}

/// If a user is at work, keeps the mark on the current row until the typed leg is stored or dropped.
bool leavesRowFor(Form& form, int& row) {
    if (!form.interattiva || !form.leaveRow)
        return true;
    SelezionaRiga(form, form.stato.RigaCorrente);
    return form.leaveRow(row);
}

void closeLists(Form& form) {
    form.cmbRicercaTappa.setVisible(false);
    form.frmframe(riquadroCopia).setVisible(false);
    form.mfgTab.setEnabled(true);
    form.frmframe(riquadroStato).setEnabled(true);
    form.stato.PulsantiItinerario = pulsanti::tutti;
}

} // namespace

QString strTipoStrada(const Serie<OptionButton>& options) {
    for (int i = 0; i < options.count(); ++i) {
        if (options(i).value())
            return QString(tipiStrada[i]);
    }
    return {};
}

QString stradaMostrata(const Grid& grid, int row) {
    const QString road = Trim(grid.cell(row, tappaStrada));
    return road.isEmpty() && row >= 2 ? Trim(grid.cell(row - 1, tappaStrada)) : road;
}

QString sostaDigitata(const Form& form) {
    const auto part = [&form](int i) { return Zero(Val(form.cmbSosta(i).text()), 2); };
    return part(0) + u':' + part(1) + u':' + part(2);
}

void cmdItinerario_Click(Form& form) {
    AttivaFormMeta(form, true);
    form.stato.TornaAlleTappe = true;
    AttivitaInserimentoItinerario(form);
    form.setDefault(form.cmdFine);
}

void AttivitaInserimentoItinerario(Form& form) {
    RimetteTappe(form);
    form.cmdCalcola.setCaption(QStringLiteral("&Calcola"));
    AggiornaNumeroRiga(form);
    form.stato.PulsantiItinerario = pulsanti::tutti;
    AbilitaPulsantiMeta(form, pulsanti::nessuno);
    if (!form.stato.TornaAlleTappe)
        return;
    form.frmframe(riquadroTappe).setVisible(true);
    form.mfgTab.setWidth(largoAccanto);
    form.cmbRicercaTappa.setVisible(false);
    form.cmdMapPoint.setEnabled(form.stato.NumeroTappe < 2);
    showRunningKm(form);
    form.setFocus(form.txtTappa);
    form.stato.TornaAlleTappe = false;
}

void unlockLegs(Form& form) {
    AttivitaInserimentoItinerario(form);
    AbilitaPulsantiMeta(form, pulsanti::tutti);
    AttivaFormMeta(form, true);
}

void RimetteTappe(Form& form) {
    if (!form.tappeConservate)
        return;
    form.mfgTab.setContents(std::move(*form.tappeConservate));
    form.tappeConservate.reset();
    CalcolaKmTempiItinerario(form);
}

void AggiornaNumeroRiga(Form& form) {
    StatoFinestra& s = form.stato;
    tidyLength(form);
    s.RigaCorrente = Maggiore(s.RigaCorrente, 1);
    if (s.RigaCorrente > s.NumeroTappe)
        s.RigaCorrente = Maggiore(s.NumeroTappe + 1, 1);
    scrollToRow(form);
    showRow(form);
    SelezionaRiga(form, s.RigaCorrente);
    form.txtRiga.setText(QString::number(s.RigaCorrente));
    const bool several = s.NumeroTappe >= 2;
    form.cmdMapPoint.setEnabled(!several);
    form.cmdRicalcola.setEnabled(several);
    form.cmdRitorno.setEnabled(several);
    form.cmdCancella.setEnabled(several);
    form.yield();
}

void showRunningKm(Form& form) {
    const bool shown = form.frmframe(riquadroTappe).visible() && form.stato.RigaCorrente >= 3;
    form.chkKm.setVisible(shown);
    form.chkKm.setEnabled(shown);
    form.chkKm.setValue(shown && form.stato.KmProgressivi && kmProgressivi(kmAbove(form)));
}

void chkKm_Click(Form& form) {
    form.stato.KmProgressivi = form.chkKm.value();
    if (form.onKmProgressivi)
        form.onKmProgressivi();
}

void AggiornaTabellaRigaCorrenteItinerario(Form& form) {
    AggiornaNumeroRiga(form);
    showRunningKm(form);
    focusPlace(form);
    if (form.stato.ModoGuida && form.guideRowShown)
        form.guideRowShown();
}

void cmdInserisce_Click(Form& form) {
    StatoFinestra& s = form.stato;
    if (s.RigaCorrente > 2) {
        form.chkKm.setVisible(true);
        form.chkKm.setEnabled(true);
    }
    const TappaControllata row = checkLeg({
        .riga = s.RigaCorrente,
        .luogo = form.txtTappa.text(),
        .km = form.txtKm.text(),
        .strada = form.txtNumStrada.text(),
        .lettera = strTipoStrada(form.optStrada),
        .sosta = sostaDigitata(form),
        .fineGiornata = form.chkEndDay.value(),
        .primaMeta = form.chkMeta(0).value(),
        .ultimaMeta = form.chkMeta(1).value(),
        .kmPrecedenti = kmAbove(form),
        .kmComeTotale = kmAreTotal(form),
    });
    if (row.totale) {
        form.lblAvviso.setCaption(QStringLiteral("%1 letto come totale: %2 km.").arg(Trim(form.txtKm.text()), row.km));
        s.KmDifferenza = row.km;
    }
    form.txtKm.setText(row.km);
    if (refused(form, row.rifiuto))
        return;
    writeRow(form, row);
    if (s.RigaCorrente > form.mfgTab.rows() - 3)
        form.mfgTab.setRows(Maggiore(s.RigaCorrente + 5, s.RigheMinime));
    ++s.RigaCorrente;
    SelezionaRiga(form, s.RigaCorrente);
    AggiornaNumeroRiga(form);
    form.cmdMapPoint.setEnabled(s.NumeroTappe == 0);
    focusPlace(form);
    CalcolaKmTempiItinerario(form);
    showRunningKm(form);
}

void CancellaFlagStartEnd(Form& form, int which) {
    const QStringView mark = which == 0 ? marcaStart : marcaEnd;
    for (int r = 1; r < form.mfgTab.rows(); ++r)
        form.mfgTab.setCell(r, tappaLuogo, senzaMarca(form.mfgTab.cell(r, tappaLuogo), mark));
}

void InserisciRigheItinerario(Form& form, int n) {
    StatoFinestra& s = form.stato;
    Grid& grid = form.mfgTab;
    const SenzaRidisegno quiet(grid);
    grid.setRows(grid.rows() + n);
    grid.shiftRows(s.RigaCorrente, s.NumeroTappe, n);
    for (int r = s.RigaCorrente + n; r <= s.NumeroTappe + n; ++r)
        grid.setCell(r, tappaNumero, QString::number(r));
    for (int r = s.RigaCorrente; r < s.RigaCorrente + n; ++r)
        grid.clearRow(r, 1);
    s.NumeroTappe += n;
}

void cmdAggiunge_Click(Form& form) {
    InserisciRigheItinerario(form, 1);
    AggiornaNumeroRiga(form);
    showRunningKm(form);
    focusPlace(form);
}

void cmdCancella_Click(Form& form) {
    Grid& grid = form.mfgTab;
    {
        const SenzaRidisegno quiet(grid);
        const bool leftBlank = grid.shiftRows(form.stato.RigaCorrente + 1, grid.rows() - 1, -1);
        for (int r = form.stato.RigaCorrente; r <= grid.rows() - 2; ++r) {
            // only rows with a place have a number
            if (grid.cell(r, tappaLuogo).isEmpty())
                grid.setCell(r, tappaNumero, {});
            else
                grid.setCell(r, tappaNumero, QString::number(r));
        }
        if (!leftBlank)
            grid.clearRow(grid.rows() - 1, 1);
    }
    focusPlace(form);
    CalcolaKmTempiItinerario(form);
    showRunningKm(form);
}

void cmdCerca_Click(Form& form) {
    form.stato.ModoRicerca = 2;
    form.stato.PulsantiItinerario = pulsanti::soloFine;
    AbilitaPulsantiComando(form);
    form.mfgTab.setEnabled(false);
    form.frmframe(riquadroStato).setEnabled(false);
    form.cmbRicercaTappa.clear();
    QStringList places;
    places.reserve(form.mfgTab.rows());
    for (int r = 1; r < form.mfgTab.rows(); ++r) {
        const QString& place = form.mfgTab.cell(r, tappaLuogo);
        if (Trim(QStringView(place)).isEmpty())
            continue;
        constexpr int wide = 31;
        const QString number = Zero(r, 4);
        QString& entry = places.emplace_back(wide + number.size(), u' ');
        std::ranges::copy(QStringView(place).first(std::min<qsizetype>(place.size(), wide)), entry.begin());
        std::ranges::copy(number, entry.begin() + wide);
    }
    form.cmbRicercaTappa.setEntries(places);
    form.cmbRicercaTappa.setVisible(true);
}

void cmdMemorizza_Click(Form& form) {
    const QString title = QStringLiteral("Salvataggio itinerario");
    const int answer = form.domanda(QStringLiteral("Vuoi salvare l'itinerario?"), title, Pulsanti::SiNoAnnulla);
    if (answer == rispostaSi) {
        MemorizzaTappeItinerario(form);
        form.stato.PulsantiItinerario = pulsanti::tutti;
        AbilitaPulsantiMeta(form, pulsanti::nessunoMaiuscolo);
    } else if (answer == rispostaNo &&
               form.domandaPericolosa(QStringLiteral("Vuoi recuperare l'itinerario originale?"), title) == rispostaSi &&
               leaveFields(form)) {
        reloadDestination(form);
    }
}

void cmdFine_Click(Form& form) {
    if (form.cmbRicercaTappa.visible() || form.frmframe(riquadroCopia).visible()) {
        closeLists(form);
        AbilitaPulsantiComando(form);
        return;
    }
    const QString question = QStringLiteral("Hai chiesto di uscire dalla funzione 'Itinerari':\n\n"
                                            "Vuoi salvare le eventuali modifiche?");
    const int answer = form.domanda(question, QStringLiteral("Fine inserimento"), Pulsanti::SiNoAnnulla);
    const bool refused = answer == rispostaSi && !MemorizzaTappeItinerario(form);
    if (answer != rispostaAnnulla && !refused && leaveFields(form)) {
        form.frmframe(riquadroTappe).setVisible(false);
        form.mfgTab.setWidth(larghezzaTabella);
        reloadDestination(form);
        AggiornaNumeroRiga(form);
        form.stato.PulsantiMeta = pulsanti::tutti;
    }
    AbilitaPulsantiComando(form);
}

void mfgTab_Click(Form& form) {
    int clicked = form.mfgTab.row();
    if (!leavesRowFor(form, clicked))
        return;
    clearMarkBoxes(form);
    form.stato.RigaCorrente = clicked;
    AggiornaTabellaRigaCorrenteItinerario(form);
    chooseSingleLeg(form, clicked);
}

void mfgTab_DblClick(Form& form) {
    const Grid& grid = form.mfgTab;
    QString text = QStringLiteral("Dati relativi a:\n\n");
    for (int c = 1; c < grid.columns(); ++c) {
        text +=
            grid.cell(0, c) + u":\t"_s + QString(c == 2 ? u""_s : u"\t"_s) + u' ' + grid.cell(grid.row(), c) + u'\n';
        if (contains(grid.cell(0, c), u"NOTE"))
            break;
    }
    form.messaggio(text);
}

void mfgTab_KeyPress(Form& form, int code) {
    constexpr int pagina = 18;
    int by = 0;
    switch (code) {
    case 38: by = -1; break;
    case 40: by = 1; break;
    case 33: by = -pagina; break;
    case 34: by = pagina; break;
    default: break;
    }
    int row = form.stato.RigaCorrente + by;
    if (!leavesRowFor(form, row))
        return;
    if (by != 0)
        clearMarkBoxes(form);
    form.stato.RigaCorrente = row;
    AggiornaNumeroRiga(form);
    showRunningKm(form);
    if (form.stato.ModoGuida && form.guideRowShown)
        form.guideRowShown();
}

} // namespace vanzer
