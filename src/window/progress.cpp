// SPDX-License-Identifier: MIT
#include "window/progress.h"

#include "core/text.h"

namespace vanzer {

void AggiornaPercentuale(Form& form) {
    StatoFinestra& s = form.stato;
    s.PercentualeCorrente = Maggiore(Minore(s.PercentualeCorrente, s.PercentualeTotale), 0.0);
    if (s.PercentualeCorrente == 0) {
        form.txtPerc.setVisible(false);
        form.lblElaborazione.setCaption(testoInAttesa.toString());
        form.txtBase.setText({});
        form.txtPerc.setWidth(0);
        return;
    }
    const int p = roundToInt(Int(s.PercentualeCorrente / s.PercentualeTotale * 100));
    if (!form.txtPerc.visible() || p != s.PercentualeMostrata) {
        s.PercentualeMostrata = p;
        form.txtPerc.setVisible(true);
        form.txtPerc.setWidth(form.txtBase.geometria().width * p / 100);
        form.txtPerc.setText(QString::number(p) + u'%');
    }
    form.yield();
}

void AzzeraPercentuale(Form& form) {
    form.stato.PercentualeCorrente = 0;
    form.stato.PercentualeTotale = 0;
    AggiornaPercentuale(form);
}

void askToInterrupt(Form& form) {
    if (form.domanda(QStringLiteral("Vuoi interrompere l'elaborazione?"), titoloFine.toString(), Pulsanti::SiNo) ==
        rispostaSi)
        form.stato.InterrompiCalcolo = true;
}

LavoroInCorso::LavoroInCorso(Form& form) : form_(form) {
    form_.stato.LavoroInCorso = true;
    form_.stato.InterrompiCalcolo = false;
    for (const int open : {riquadroTratto, riquadroScambio})
        form_.frmframe(open).setEnabled(false);
}

LavoroInCorso::~LavoroInCorso() {
    form_.stato.LavoroInCorso = false;
    for (const int open : {riquadroTratto, riquadroScambio})
        form_.frmframe(open).setEnabled(true);
}

bool LavoroInCorso::advance(double done) {
    form_.stato.PercentualeCorrente = done;
    AggiornaPercentuale(form_);
    return !form_.stato.InterrompiCalcolo;
}

} // namespace vanzer
