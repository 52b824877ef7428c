// SPDX-License-Identifier: MIT
#include "reports/print_screen.h"

#include "reports/guide_print_screen.h"
#include "reports/schedule_print_screen.h"
#include "schedule/calculation_screen.h"
#include "toolkit/printer.h"
#include "window/button_codes.h"
#include "window/modes.h"

namespace vanzer {

namespace {

constexpr int reportViandoria = 1;
constexpr int reportGuida = 2;
constexpr int sinistraStampanti = 5300; // twips

void offerPrinters(Form& form, int report) {
    form.stato.TipoStampa = report;
    form.frmframe(riquadroStampanti).setLeft(sinistraStampanti);
    VisualizzaListaStampanti(form);
}

} // namespace

void cmdStampa_Click(Form& form) {
    AbilitaPulsantiMeta(form, pulsanti::nessuno);
    if (!form.stato.ViandoriaCalcolata) {
        CalcolaViandoria(form, ScopoCalcolo::Stampa);
        if (!form.stato.ViandoriaCalcolata)
            return;
    }
    form.txtfileTabella.setText(percorsoMostrato(form, fileTabella));
    form.frmframe(riquadroOpzioniStampa).setVisible(true);
    form.stato.TipoStampa = reportViandoria;
}

void CmdEsegui_Click(Form& form, int index) {
    if (index == 0) {
        offerPrinters(form, form.stato.TipoStampa);
        return;
    }
    RinunciaStampa(form);
    AbilitaPulsantiMeta(form, pulsanti::tutti);
}

void cmdStampaGuidaCitta_Click(Form& form) {
    form.frmframe(riquadroStampaGuida).setVisible(true);
}

void cmdStampaGuida_Click(Form& form, int index) {
    if (index != 0) {
        form.frmframe(riquadroStampaGuida).setVisible(false);
        return;
    }
    form.frmframe(riquadroGuida).setEnabled(false);
    offerPrinters(form, reportGuida);
}

void VisualizzaListaStampanti(Form& form) {
    form.lstStampanti.clear();
    if (form.ports.printer != nullptr)
        form.lstStampanti.setEntries(form.ports.printer->names());
    form.frmframe(riquadroStampanti).setVisible(true);
}

void cmdSelStampante_Click(Form& form, int index) {
    AbilitaPulsantiMeta(form, pulsanti::duranteLaStampa);
    form.frmframe(riquadroStampanti).setVisible(false);
    if (index != 0) {
        form.frmframe(riquadroGuida).setEnabled(true);
        return;
    }
    form.frmframe(riquadroGuida).setVisible(false);
    if (form.ports.printer == nullptr)
        return;
    form.ports.printer->choose(form.lstStampanti.text());
    if (form.stato.TipoStampa == reportViandoria)
        StampaDellItinerario(form);
    if (form.stato.TipoStampa == reportGuida) {
        StampaDelleMete(form);
        form.frmframe(riquadroGuida).setVisible(true);
        form.frmframe(riquadroGuida).setEnabled(true);
    }
}

void askToInterruptPrint(Form& form) {
    if (form.domanda(QStringLiteral("Vuoi interrompere la stampa?"), QStringLiteral("Stampa"), Pulsanti::SiNo) ==
        rispostaSi)
        form.stato.InterrompiStampa = true;
}

} // namespace vanzer
