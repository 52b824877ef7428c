#include "window/ways_out.h"

#include <algorithm>

#include "guide/guide_screen.h"
#include "reports/print_screen.h"
#include "window/destination_screen.h"
#include "window/modes.h"

namespace vanzer {

void chiedeDiChiudere(Form& form) {
    Button* const waysOut[] = {
        &form.cmdEsce,         &form.cmdFine,      &form.cmdSelStampante(1), &form.cmdFineInserimento,
        &form.cmdInsEsegui(1), &form.cmdEsegui(1), &form.cmdImExp(1),        &form.cmdTappaSEl(3)};
    for (Button* const button : waysOut) {
        if (button->reachable()) {
            button->click();
            return;
        }
    }
    rinunciaAllaScelta(form);
}

void rinunciaAllaScelta(Form& form) {
    Button* const choices[] = {&form.cmdSelStampante(1), &form.cmdEsegui(1), &form.cmdStampaGuida(1),
                               &form.cmdInsEsegui(1)};
    const auto* const open = std::ranges::find_if(choices, [](const Button* b) { return b->reachable(); });
    if (form.stato.StampaInCorso)
        chiedeDiInterrompereLaStampa(form);
    else if (form.stato.ScambioInCorso)
        chiedeDiInterrompere(form);
    else if (open != std::end(choices))
        (*open)->click();
    else if ((form.cmbRicercaTappa.reachable() || form.mfgCopia.reachable()) && form.cmdFine.reachable())
        form.cmdFine.click();
    else if (form.cmbRicercaTappa.reachable() && form.stato.ModoGuida)
        RinunciaRicercaGuida(form);
    else if (form.cmbRicerca.reachable())
        RinunciaRicerca(form);
    else if (form.cmdImExp(1).reachable())
        form.cmdImExp(1).click();
    else if (form.frmLinea.visible() && form.cmdLinea.reachable())
        form.cmdLinea.click();
    else if (form.cmdTappaSEl(3).reachable())
        form.cmdTappaSEl(3).click();
}

} // namespace vanzer
