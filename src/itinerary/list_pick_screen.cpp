// SPDX-License-Identifier: MIT
#include "itinerary/list_pick_screen.h"

#include "core/text.h"
#include "itinerary/leg_editor_screen.h"
#include "window/button_codes.h"
#include "window/grid_layouts.h"
#include "window/modes.h"

namespace vanzer {

namespace {

constexpr int righeSopra = 8;

void showAround(Form& form) {
    form.mfgTab.setTopRow(Maggiore(form.stato.RigaCorrente - righeSopra, 1));
}

} // namespace

void cmbRicercaTappa_Click(Form& form) {
    StatoFinestra& s = form.stato;
    form.cmbRicercaTappa.setVisible(false);
    form.mfgTab.setEnabled(true);
    form.frmframe(riquadroStato).setEnabled(true);
    if (s.ModoRicerca != 2)
        return;
    showAround(form);
    form.frmframe(riquadroGuida).setEnabled(true);
    s.RigaCorrente = roundToInt(Val(Right(form.cmbRicercaTappa.text(), 4)));
    if (s.ModoGuida) {
        showAround(form);
        s.PulsantiItinerario = pulsanti::tutti;
        AbilitaPulsantiComando(form);
    }
    SelezionaRiga(form, s.RigaCorrente);
    if (form.frmframe(riquadroGuida).visible()) {
        if (form.guideRowShown)
            form.guideRowShown();
        form.setFocus(form.txtGDescr);
    }
    if (form.frmframe(riquadroTappe).visible()) {
        form.setFocus(form.txtTappa);
        s.PulsantiItinerario = pulsanti::tutti;
        AbilitaPulsantiComando(form);
        s.RigaCorrente = form.mfgTab.row();
        AggiornaNumeroRiga(form);
        showRunningKm(form);
    }
}

} // namespace vanzer
