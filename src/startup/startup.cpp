#include "startup/startup.h"

#include "exchange/choice_screen.h"
#include "exchange/exchange_screen.h"
#include "exchange/first_steps_screen.h"
#include "store/outside_files.h"
#include "window/command.h"

namespace vanzer {

std::unique_ptr<Form> avvia(const Ambiente& surroundings, Ports& ports) {
    auto form = nuovaFinestra(surroundings, ports);
    caricaFinestra(*form);
    return form;
}

void apreViaggi(Form& form, const QString& path) {
    comando(form, [&form, &path] { apreFileDiViaggi(form, path); });
}

QString nomeRiservato(const Form& form, const QString& path) {
    return store::motivoRiservato(path, form.archivio.PercorsoDatabase);
}

} // namespace vanzer
