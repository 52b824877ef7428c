// SPDX-License-Identifier: MIT
#include "reports/print_run_screen.h"

namespace vanzer {

CorsaDiStampa::CorsaDiStampa(Form& form) : form_(form), sheet_(*form.ports.printer) {
    form_.stato.InterrompiStampa = false;
    form_.stato.StampaInCorso = true;
}

CorsaDiStampa::~CorsaDiStampa() {
    form_.stato.StampaInCorso = false;
}

Piede CorsaDiStampa::piede() const {
    return {form_.ports.clock.now().toString(QStringLiteral("dd/MM/yyyy")), form_.caption};
}

void CorsaDiStampa::fallita(const QString& reason) {
    failed_ = true;
    isMissing(reason);
}

void CorsaDiStampa::isMissing(const QString& what) {
    if (!what.isEmpty() && !missing_.contains(what))
        missing_ << what;
}

void CorsaDiStampa::fineDocumento() {
    Printer& printer = *form_.ports.printer;
    if (form_.stato.InterrompiStampa) {
        unwanted_ = true;
        printer.dropDoc();
    } else {
        step([this, &printer] {
            unwanted_ = !printer.endDoc();
            files_ += printer.madeFiles();
        });
    }
}

void CorsaDiStampa::tellLost() {
    if (!missing_.isEmpty())
        form_.messaggio(QStringLiteral("La stampa non è completa:\n\n") + missing_.join(u'\n'),
                        QStringLiteral("Stampa"), Icona::Avviso);
}

} // namespace vanzer
