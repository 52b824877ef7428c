#include "window/ways_out.h"

#include "guide/guide_screen.h"
#include "reports/print_screen.h"
#include "window/destination_screen.h"

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
    if (form.stato.StampaInCorso)
        chiedeDiInterrompereLaStampa(form);
    else if (form.cmbRicercaTappa.reachable() && form.cmdFine.reachable())
        form.cmdFine.click();
    else if (form.cmbRicercaTappa.reachable() && form.stato.ModoGuida)
        RinunciaRicercaGuida(form);
    else if (form.cmbRicerca.reachable())
        RinunciaRicerca(form);
}

} // namespace vanzer
