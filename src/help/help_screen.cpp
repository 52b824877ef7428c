// SPDX-License-Identifier: MIT
#include "help/help_screen.h"

#include "help/messages.h"

namespace vanzer {

void cmdHelpGenerico_Click(Form& form) {
    form.messaggio(aiutoComandi());
}

void cmdHelpTotale1_Click(Form& form) {
    form.messaggio(aiutoMetodo());
}

void cmdHelpTotale2_Click(Form& form) {
    form.messaggio(aiutoDatiMeta());
}

void cmdHelpTt_Click(Form& form) {
    form.messaggio(aiutoTempiTecnici());
}

void cmdHelpKm_Click(Form& form) {
    form.messaggio(aiutoCampiTappa());
}

void cmdHelpItin_Click(Form& form, int index) {
    constexpr int otherPackages = 4;
    form.messaggio(index == otherPackages ? aiutoAltriPacchetti() : aiutoPulsantiTappa(index));
}

void cmdHelpDuplica_Click(Form& form) {
    form.messaggio(aiutoCopiaTratto());
}

void cmdHelpExport_Click(Form& form) {
    form.messaggio(aiutoImportExport());
}

void cmdHelpGuida_Click(Form& form, int index) {
    form.messaggio(index == 0 ? aiutoPulsantiGuida() : aiutoCampiGuida());
}

} // namespace vanzer
