#include "window/ways_out.h"

#include "window/modes.h"

namespace vanzer {

void chiedeDiChiudere(Form& form) {
    Button* const waysOut[] = {&form.cmdEsce,
                               &form.cmdFine,
                               &form.cmdFineInserimento,
                               &form.cmdInsEsegui(1),
                               &form.cmdSelStampante(1),
                               &form.cmdEsegui(1),
                               &form.cmdImExp(1),
                               &form.cmdTappaSEl(3)};
    for (Button* const button : waysOut) {
        if (button->reachable()) {
            button->click();
            return;
        }
    }
    rinunciaAllaScelta(form);
}

void rinunciaAllaScelta(Form& form) {
    if (form.cmbRicercaTappa.reachable() && form.cmdFine.reachable()) {
        form.cmdFine.click();
    } else if (form.cmbRicercaTappa.reachable() && form.stato.ModoGuida) {
        form.cmbRicercaTappa.setVisible(false);
        for (Control* const control : {static_cast<Control*>(&form.mfgTab), static_cast<Control*>(&form.frmframe(24)),
                                       static_cast<Control*>(&form.frmframe(28))})
            control->setEnabled(true);
        form.setFocus(form.txtGDescr);
    } else if (form.cmbRicerca.reachable()) {
        form.cmbRicerca.setVisible(false);
        AbilitaPulsantiMeta(form, form.stato.PulsantiPrimaDellaRicerca);
    }
}

} // namespace vanzer
