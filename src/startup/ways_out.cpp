// SPDX-License-Identifier: MIT
#include "startup/ways_out.h"

#include <algorithm>
#include <array>

#include "core/text.h"
#include "guide/guide_screen.h"
#include "reports/print_screen.h"
#include "trip/destination_screen.h"
#include "window/command.h"
#include "window/progress.h"

namespace vanzer {

namespace {

/// A part of the window that can be open, and how to leave it.
struct Aperto {
    bool (*open)(const Form& form);
    void (*leave)(Form& form);
};

/// From the top down: a part that covers another one is left first.
constexpr std::array<Aperto, 10> apribili{{
    {[](const Form& f) { return f.frmframe(riquadroStampanti).visible(); },
     [](Form& f) { f.cmdSelStampante(1).click(); }},
    {[](const Form& f) { return f.frmframe(riquadroOpzioniStampa).visible(); },
     [](Form& f) { f.cmdEsegui(1).click(); }},
    {[](const Form& f) { return f.frmframe(riquadroStampaGuida).visible(); },
     [](Form& f) { f.cmdStampaGuida(1).click(); }},
    {[](const Form& f) { return f.frmframe(riquadroTrattoCopia).visible(); },
     [](Form& f) { f.cmdInsEsegui(1).click(); }},
    {[](const Form& f) { return f.cmbRicercaTappa.visible() && f.stato.ModoGuida; },
     [](Form& f) { comando(f, [&f] { RinunciaRicercaGuida(f); }); }},
    {[](const Form& f) { return f.cmbRicercaTappa.visible() || f.frmframe(riquadroCopia).visible(); },
     [](Form& f) { f.cmdFine.click(); }},
    {[](const Form& f) { return f.frmframe(riquadroTratto).visible(); }, [](Form& f) { f.cmdTappaSEl(3).click(); }},
    {[](const Form& f) { return f.frmframe(riquadroTappe).visible() || f.frmframe(riquadroGuida).visible(); },
     [](Form& f) { (f.frmframe(riquadroTappe).visible() ? f.cmdFine : f.cmdFineInserimento).click(); }},
    {[](const Form& f) { return f.frmframe(riquadroScambio).visible(); }, [](Form& f) { f.cmdImExp(1).click(); }},
    {[](const Form& f) { return f.cmbRicerca.visible(); }, [](Form& f) { comando(f, [&f] { RinunciaRicerca(f); }); }},
}};

/// Asks the running work to end. False if it can't be asked.
bool asksToInterrupt(Form& form) {
    if (form.stato.StampaInCorso)
        askToInterruptPrint(form);
    else if (form.stato.LavoroInCorso)
        askToInterrupt(form);
    else if (uguale(form.cmdEsce.caption(), u"&Stop") && form.cmdEsce.reachable())
        form.cmdEsce.click();
    else
        return false;
    return true;
}

} // namespace

bool interruptUnasked(Form& form) {
    StatoFinestra& s = form.stato;
    if (s.StampaInCorso)
        s.InterrompiStampa = true;
    else if (form.comandoInCorso && (s.LavoroInCorso || stopsWork(form, form.cmdEsce)))
        s.InterrompiCalcolo = true;
    else
        return false;
    return true;
}

bool askToClose(Form& form) {
    if (form.comandoInCorso)
        return asksToInterrupt(form);
    for (const Aperto& thing : apribili) {
        if (!thing.open(form))
            continue;
        thing.leave(form);
        if (thing.open(form))
            return true;
    }
    form.cmdEsce.click();
    return true;
}

void giveUpChoice(Form& form) {
    Button* const choices[] = {&form.cmdSelStampante(1), &form.cmdEsegui(1), &form.cmdStampaGuida(1),
                               &form.cmdInsEsegui(1)};
    const auto* const open = std::ranges::find_if(choices, [](const Button* b) { return b->reachable(); });
    if (form.stato.StampaInCorso)
        askToInterruptPrint(form);
    else if (form.stato.LavoroInCorso)
        askToInterrupt(form);
    else if (form.comandoInCorso)
        return;
    else if (open != std::end(choices))
        (*open)->click();
    else if ((form.cmbRicercaTappa.reachable() || form.mfgCopia.reachable()) && form.cmdFine.reachable())
        form.cmdFine.click();
    else if (form.cmbRicercaTappa.reachable() && form.stato.ModoGuida)
        comando(form, [&form] { RinunciaRicercaGuida(form); });
    else if (form.cmbRicerca.reachable())
        comando(form, [&form] { RinunciaRicerca(form); });
    else if (form.cmdImExp(1).reachable())
        form.cmdImExp(1).click();
    else if (form.frmLinea.visible() && form.cmdLinea.reachable())
        form.cmdLinea.click();
    else if (form.cmdTappaSEl(3).reachable())
        form.cmdTappaSEl(3).click();
}

} // namespace vanzer
