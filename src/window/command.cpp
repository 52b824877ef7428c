// SPDX-License-Identifier: MIT
#include "window/command.h"

#include <algorithm>
#include <array>

#include "core/text.h"
#include "window/button_codes.h"
#include "window/changes.h"
#include "window/modes.h"
#include "window/progress.h"

namespace vanzer {

namespace {

bool anyFrameOpen(const Form& form) {
    return std::ranges::any_of(std::array{riquadroTratto, riquadroTappe, riquadroCopia, riquadroOpzioniStampa,
                                          riquadroTrattoCopia, riquadroScambio, riquadroStampanti, riquadroGuida,
                                          riquadroStampaGuida},
                               [&form](int frame) { return form.frmframe(frame).visible(); });
}

/// Restores the buttons. If all were off because of a frame that the command closed before it failed, all are enabled.
void giveButtonsBack(Form& form, const QString& meta, const QString& itinerario) {
    form.stato.PulsantiMeta = uguale(meta, pulsanti::nessuno) && !anyFrameOpen(form) ? pulsanti::tutti : meta;
    form.stato.PulsantiItinerario = itinerario;
    form.frmframe(riquadroMenu).setEnabled(true);
    AbilitaPulsantiComando(form);
    AzzeraPercentuale(form);
}

} // namespace

void storeTogether(Form& form, const std::function<void()>& handler) {
    form.comandoInCorso = true;
    form.archivio.beginCommand();
    try {
        handler();
        if (form.archivio.Db(0) != nullptr)
            form.archivio.commitCommand();
        form.comandoInCorso = false;
    } catch (...) {
        form.comandoInCorso = false;
        if (form.archivio.Db(0) != nullptr)
            form.archivio.rollbackCommand();
        throw;
    }
}

void comando(Form& form, const std::function<void()>& handler) {
    if (form.chiusa || form.comandoInCorso)
        return;
    if (form.beforeCommand)
        form.beforeCommand();
    form.lblAvviso.setCaption({});
    const QString meta = form.stato.PulsantiMeta;
    const QString itinerario = form.stato.PulsantiItinerario;
    // Changes that the command makes itself don't count as the user's.
    form.campiDaRicordare = form.interattiva && campiCambiati(form).isEmpty();
    try {
        storeTogether(form, handler);
    } catch (const store::StoreError& error) {
        form.messaggio(error.testo(), QStringLiteral("Archivio"), Icona::Avviso);
        giveButtonsBack(form, meta, itinerario);
    }
    if (form.campiDaRicordare)
        rememberFields(form);
}

bool stopsWork(const Form& form, const Control& control) {
    return &control == &form.cmdEsce && uguale(form.cmdEsce.caption(), u"&Stop") && control.reachable();
}

} // namespace vanzer
