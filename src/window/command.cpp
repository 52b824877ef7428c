#include "window/command.h"

#include "window/modes.h"

namespace vanzer {

namespace {

void runInTransaction(Form& form, const std::function<void()>& handler) {
    form.archivio.beginCommand();
    try {
        handler();
        if (form.archivio.Db(0) != nullptr)
            form.archivio.commitCommand();
    } catch (...) {
        if (form.archivio.Db(0) != nullptr)
            form.archivio.rollbackCommand();
        throw;
    }
}

void giveButtonsBack(Form& form, const QString& meta, const QString& itinerario) {
    form.stato.PulsantiMeta = meta;
    form.stato.PulsantiItinerario = itinerario;
    form.frmframe(15).setEnabled(true);
    AbilitaPulsantiComando(form);
    AzzeraPercentuale(form);
}

} // namespace

void comando(Form& form, const std::function<void()>& handler) {
    if (form.chiusa)
        return;
    if (form.comandoInCorso) {
        handler();
        return;
    }
    const QString meta = form.stato.PulsantiMeta;
    const QString itinerario = form.stato.PulsantiItinerario;
    form.comandoInCorso = true;
    try {
        runInTransaction(form, handler);
        form.comandoInCorso = false;
    } catch (const store::StoreError& error) {
        form.comandoInCorso = false;
        form.messaggio(error.testo(), QStringLiteral("Archivio"), Icona::Avviso);
        giveButtonsBack(form, meta, itinerario);
    }
}

} // namespace vanzer
