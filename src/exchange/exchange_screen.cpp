// SPDX-License-Identifier: MIT
#include "exchange/exchange_screen.h"

#include <QDir>
#include <QFileInfo>

#include "core/text.h"
#include "exchange/choice_screen.h"
#include "exchange/chosen_file_screen.h"
#include "exchange/export_screen.h"
#include "exchange/import_screen.h"
#include "store/outside_files.h"
#include "trip/destination_screen.h"
#include "window/changes.h"
#include "window/confirmation.h"
#include "window/modes.h"
#include "window/progress.h"

namespace vanzer {

namespace {

/// Enables lists and buttons again.
void giveListsBack(Form& form) {
    for (Grid* const list : form.mfgImExp)
        list->setEnabled(true);
    AggiornaPulsantiImportExport(form);
}

/// Disables lists and buttons while the work runs.
class ElenchiSpenti {
  public:
    explicit ElenchiSpenti(Form& form) : form_(form) {
        for (Grid* const list : form.mfgImExp)
            list->setEnabled(false);
        for (const auto* const buttons : {&form.cmdImExp, &form.cmdTutto}) {
            for (Button* const button : *buttons)
                button->setEnabled(false);
        }
    }
    ~ElenchiSpenti() { giveListsBack(form_); }
    ElenchiSpenti(const ElenchiSpenti&) = delete;
    ElenchiSpenti& operator=(const ElenchiSpenti&) = delete;

  private:
    Form& form_;
};

void EsciExportImport(Form& form) {
    form.mfgTab.setVisible(true);
    form.frmframe(riquadroStato).setVisible(true);
    form.frmframe(riquadroScambio).setVisible(false);
    form.cmdExport.setEnabled(true);
}

/// Loads the main screen again after the work.
void reloadMainScreen(Form& form) {
    form.stato.CodiceMeta.clear();
    RicaricaItinerario(form);
    AbilitaPulsantiMeta(form, pulsantiDiBase(form));
}

/// Imports the chosen destinations.
EsitoImport importChosen(Form& form) {
    AttivaFormMeta(form, true);
    form.frmframe(riquadroScambio).setVisible(false);
    EsitoImport result = readImportFile(form);
    AzzeraPercentuale(form);
    EsciExportImport(form);
    return result;
}

void importDestinations(Form& form) {
    BoxConferma(form, QStringLiteral("IM"));
    if (form.stato.Risposta == rispostaSi) {
        const ElenchiSpenti off(form);
        const EsitoImport result = importChosen(form);
        if (result.riuscito)
            form.messaggio(result.testo);
        else
            form.messaggio(result.testo, QStringLiteral("Import"), Icona::Avviso);
    } else {
        giveListsBack(form);
    }
    reloadMainScreen(form);
}

/// Asks for the file of the export. False if the user cancelled.
bool askForFile(Form& form) {
    form.stato.NomeFileScambio = form.ports.files.save(filtroScambio.toString(), Ricopertura::ChiedeIlComando);
    const QString& name = form.stato.NomeFileScambio;
    if (name.isEmpty())
        return false;
    const QString file = percorsoScelto(form);
    const QString shown = QDir::toNativeSeparators(name);
    if (const QString reserved = store::motivoRiservato(file, form.archivio.PercorsoDatabase); !reserved.isEmpty()) {
        form.messaggio(QStringLiteral("Il file %1 %2").arg(shown, reserved), QStringLiteral("Export"), Icona::Avviso);
        return false;
    }
    if (!QFileInfo::exists(file))
        return true;
    return form.domandaPericolosa(QStringLiteral("Il file %1 esiste già: ricopro?").arg(shown),
                                  QStringLiteral("File %1 esistente").arg(shown)) == rispostaSi;
}

void exportDestinations(Form& form) {
    if (!askForFile(form)) {
        giveListsBack(form);
        return;
    }
    BoxConferma(form, QStringLiteral("EX"));
    if (form.stato.Risposta == rispostaSi) {
        const ElenchiSpenti off(form);
        writeExchangeFile(form);
    } else {
        giveListsBack(form);
    }
    AzzeraPercentuale(form);
    reloadMainScreen(form);
}

} // namespace

EsitoImport ImportaTutto(Form& form, const QString& path) {
    form.frmframe(riquadroScambio).setVisible(true);
    ElencaFileScambio(form, path);
    cmdTutto_Click(form, 1);
    EsitoImport result;
    {
        const ElenchiSpenti off(form);
        result = importChosen(form);
    }
    reloadMainScreen(form);
    return result;
}

void cmdImExp_Click(Form& form, int n) {
    if (n != 0) {
        if (!leaveFields(form))
            return;
        form.frmframe(riquadroScambio).setVisible(false);
        reloadMainScreen(form);
        return;
    }
    for (Button* const button : form.cmdImExp)
        button->setEnabled(false);
    if (importaScelto(form)) {
        importDestinations(form);
    } else if (uguale(form.cmdImExp(0).caption(), u"esporta")) {
        exportDestinations(form);
    } else {
        reloadMainScreen(form);
    }
}

} // namespace vanzer
