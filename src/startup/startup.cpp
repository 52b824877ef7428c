// SPDX-License-Identifier: MIT
#include "startup/startup.h"

#include "exchange/choice_screen.h"
#include "exchange/exchange_screen.h"
#include "exchange/first_steps_screen.h"
#include "store/outside_files.h"
#include "window/command.h"

namespace vanzer {

std::unique_ptr<Form> startWindow(const Ambiente& surroundings, Ports& ports) {
    auto form = nuovaFinestra(surroundings, ports);
    loadWindow(*form);
    return form;
}

void openTripsOf(Form& form, const QString& path) {
    comando(form, [&form, &path] { openTripsFile(form, path); });
}

QString nomeRiservato(const Form& form, const QString& path) {
    return store::motivoRiservato(path, form.archivio.PercorsoDatabase);
}

} // namespace vanzer
