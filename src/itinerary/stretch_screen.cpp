// SPDX-License-Identifier: MIT
#include "itinerary/stretch_screen.h"

#include "core/leg_columns.h"
#include "core/text.h"
#include "itinerary/leg_editor_screen.h"
#include "itinerary/stretch.h"
#include "trip/destination_screen.h"
#include "trip/leg_table_screen.h"
#include "window/button_codes.h"
#include "window/changes.h"
#include "window/grid_layouts.h"
#include "window/modes.h"

namespace vanzer {

namespace {

constexpr int largoAccantoAlTratto = 11500;
constexpr int righeSopraIlTratto = 12;

TrattoScelto shownStretch(const Form& form) {
    return {form.txttappasel(0).text(), form.txttappasel(1).text()};
}

void showEnds(Form& form, const TrattoScelto& stretch) {
    form.txttappasel(0).setText(stretch.prima);
    form.txttappasel(1).setText(stretch.ultima);
}

QString endAtRow(const Form& form, int row) {
    const Grid& grid = form.mfgTab;
    return testoEstremo(row, grid.cell(row, tappaNumero), grid.cell(row, tappaTipo), grid.cell(row, tappaLuogo));
}

void choose(Form& form, bool asFirst) {
    TrattoScelto stretch = shownStretch(form);
    stretch.choose(asFirst, endAtRow(form, form.mfgTab.row()));
    showEnds(form, stretch);
}

void assign(Form& form) {
    Grid& grid = form.mfgTab;
    const TrattoScelto stretch = shownStretch(form);
    const int last = stretch.aRiga();
    if (stretch.tappe() > 0) {
        const SenzaRidisegno quiet(grid);
        for (int r = Maggiore(stretch.daRiga(), 1); r <= Minore(last, grid.rows() - 1); ++r)
            grid.setCell(r, tappaTipo, strTipoStrada(form.optTStrada));
        form.stato.MappaModifiche = conModifiche(form.stato.MappaModifiche, stretch.daRiga(), last);
    }
    SelezionaRiga(form, last + 1);
    if (last > grid.topRow() - righeSopraIlTratto)
        grid.setTopRow(Maggiore(last - righeSopraIlTratto, 1));
    const QString next = endAtRow(form, grid.row());
    showEnds(form, {next, next});
}

void close(Form& form) {
    form.chkTappaSingola.setValue(false);
    form.stato.MappaModifiche.clear();
    form.frmframe(riquadroTratto).setVisible(false);
    form.mfgTab.setWidth(larghezzaTabella);
}

bool save(Form& form) {
    if (!MemorizzaTappeItinerario(form))
        return false;
    form.stato.MappaModifiche.replace(u'1', u'0');
    return true;
}

/// Asks whether to store the assigned road types. False if they were to be stored and can't be.
bool storeIfWanted(Form& form) {
    return !form.stato.MappaModifiche.contains(u'1') ||
           form.domanda(QStringLiteral("Vuoi salvare le modifiche apportate?"), QStringLiteral("Salvataggio dati"),
                        Pulsanti::SiNo) != rispostaSi ||
           save(form);
}

void leave(Form& form) {
    if (!storeIfWanted(form) || !leaveFields(form))
        return;
    close(form);
    RicaricaItinerario(form);
}

void showStretch(Form& form) {
    const TrattoScelto stretch = shownStretch(form);
    form.cmdTappaSEl(2).setEnabled(stretch.isChosen());
    form.txttappasel(2).setText(QString::number(stretch.tappe()));
    if (stretch.daRiga() < stretch.aRiga())
        SelezioneGriglia(form, stretch.daRiga(), stretch.aRiga(), 0, 99);
}

/// Puts the legs back into the table if a schedule is there. True if the table then holds the legs.
bool legsInTable(Form& form) {
    if (form.stato.ModoGuida)
        return false;
    if (form.tappeConservate)
        unlockLegs(form);
    return true;
}

} // namespace

void cmdModStrada_Click(Form& form) {
    form.frmframe(riquadroTratto).setVisible(true);
    form.mfgTab.setWidth(largoAccantoAlTratto);
    AbilitaPulsantiMeta(form, pulsanti::tutti);
    form.cmdTappaSEl(2).setEnabled(false);
}

bool closeStretch(Form& form) {
    if (legsInTable(form) && !storeIfWanted(form))
        return false;
    close(form);
    return true;
}

void cmdTappaSEl_Click(Form& form, int i) {
    if (!legsInTable(form)) {
        if (i == 3)
            close(form);
        else
            form.refuse(QStringLiteral("Impossibile: nella tabella c'è la guida.\n\nChiudere prima la guida."),
                        QStringLiteral("Modifica tratto"));
        return;
    }
    if (form.stato.MappaModifiche.isEmpty())
        form.stato.MappaModifiche.fill(u'0', form.mfgTab.rows());
    switch (i) {
    case 0:
    case 1: choose(form, i == 0); break;
    case 2: assign(form); break;
    case 3: leave(form); break;
    case 4: save(form); break;
    default: break;
    }
    showStretch(form);
}

void chooseSingleLeg(Form& form, int riga) {
    if (!form.chkTappaSingola.value() || form.stato.ModoGuida || form.tappeConservate)
        return;
    cmdTappaSEl_Click(form, 0);
    cmdTappaSEl_Click(form, 1);
    SelezionaRiga(form, riga);
}

} // namespace vanzer
