// SPDX-License-Identifier: MIT
#include "exchange/first_steps_screen.h"

#include <QDir>

#include "exchange/choice_screen.h"
#include "exchange/exchange_screen.h"
#include "trip/destination_screen.h"
#include "window/changes.h"

/// Makes the resources of this library available.
static void loadSamples() {
    Q_INIT_RESOURCE(samples);
}

namespace vanzer {

namespace {

const QString sampleFolder = QStringLiteral(":/esempi");

void offer(Form& form, const QString& path) {
    cmdExport_Click(form);
    if (!form.frmframe(riquadroScambio).visible())
        return;
    form.frmPrimiPassi.setVisible(false);
    ElencaFileScambio(form, path);
}

} // namespace

void cmdPrimoViaggio_Click(Form& form) {
    cmdNuovo_Click(form);
}

void cmdImportaViaggi_Click(Form& form) {
    if (const QString path = form.ports.files.open(filtroScambio.toString()); !path.isEmpty())
        offer(form, path);
}

void cmdViaggiEsempio_Click(Form& form) {
    if (!leaveChanges(form))
        return;
    loadSamples();
    const QDir samples(sampleFolder);
    form.frmPrimiPassi.setVisible(false);
    for (const QString& file : samples.entryList(QDir::Files, QDir::Name)) {
        const EsitoImport result = ImportaTutto(form, samples.filePath(file));
        if (!result.riuscito) {
            form.messaggio(result.testo, QStringLiteral("Viaggi di esempio"), Icona::Avviso);
            return;
        }
    }
    form.messaggio(
        QStringLiteral("I viaggi di esempio sono in archivio.\n\nQuesto è il primo che si vede: \"Calcola\" ne "
                       "fa la viandoria, \"Ricerca\" porta agli altri."),
        QStringLiteral("Viaggi di esempio"), Icona::Informazione);
}

void openTripsFile(Form& form, const QString& path) {
    if (!QFileInfo(path).isFile()) {
        form.messaggio(QStringLiteral("Il file %1 non c'è.").arg(QDir::toNativeSeparators(path)),
                       QStringLiteral("Import"), Icona::Avviso);
        return;
    }
    offer(form, path);
}

} // namespace vanzer
