#include "reports/print_screen.h"

#include "reports/guide_print_screen.h"
#include "reports/schedule_print_screen.h"
#include "schedule/calculation_screen.h"
#include "toolkit/printer.h"
#include "window/modes.h"

namespace vanzer {

namespace {

constexpr int reportViandoria = 1;
constexpr int reportGuida = 2;
constexpr int sinistraStampanti = 5300;

void offerPrinters(Form& form, int report) {
    form.stato.TipoStampa = report;
    form.frmframe(23).setLeft(sinistraStampanti);
    VisualizzaListaStampanti(form);
}

} // namespace

void cmdStampa_Click(Form& form) {
    AbilitaPulsantiMeta(form, QStringLiteral("zz"));
    if (!form.stato.ViandoriaCalcolata) {
        form.colonne(0) = QStringLiteral("Stampa");
        CalcolaViandoria(form);
        if (!form.stato.ViandoriaCalcolata)
            return;
    }
    form.txtfileTabella.setText(percorsoMostrato(form, fileTabella));
    form.frmframe(18).setVisible(true);
    form.stato.TipoStampa = reportViandoria;
}

void CmdEsegui_Click(Form& form, int index) {
    if (index == 0) {
        offerPrinters(form, form.stato.TipoStampa);
        return;
    }
    RinunciaStampa(form);
    AbilitaPulsantiMeta(form, QStringLiteral("all"));
}

void cmdStampaGuidaCitta_Click(Form& form) {
    form.frmframe(25).setVisible(true);
}

void cmdStampaGuida_Click(Form& form, int index) {
    if (index != 0) {
        form.frmframe(25).setVisible(false);
        return;
    }
    form.frmframe(24).setEnabled(false);
    offerPrinters(form, reportGuida);
}

void VisualizzaListaStampanti(Form& form) {
    form.lstStampanti.clear();
    if (form.ports.printer != nullptr)
        form.lstStampanti.setEntries(form.ports.printer->names());
    form.frmframe(23).setVisible(true);
}

void cmdSelStampante_Click(Form& form, int index) {
    AbilitaPulsantiMeta(form, QStringLiteral("vv"));
    form.frmframe(23).setVisible(false);
    if (index != 0) {
        form.frmframe(24).setEnabled(true);
        return;
    }
    form.frmframe(24).setVisible(false);
    if (form.ports.printer == nullptr)
        return;
    form.ports.printer->choose(form.lstStampanti.text());
    if (form.stato.TipoStampa == reportViandoria)
        StampaDellItinerario(form);
    if (form.stato.TipoStampa == reportGuida) {
        StampaDelleMete(form);
        form.frmframe(24).setVisible(true);
        form.frmframe(24).setEnabled(true);
    }
}

void chiedeDiInterrompereLaStampa(Form& form) {
    if (form.domanda(QStringLiteral("Vuoi interrompere la stampa?"), QStringLiteral("Stampa"), Pulsanti::SiNo) ==
        rispostaSi)
        form.stato.InterrompiStampa = true;
}

} // namespace vanzer
