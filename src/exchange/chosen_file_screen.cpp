// SPDX-License-Identifier: MIT
#include "exchange/chosen_file_screen.h"

#include <QDir>

#include "store/outside_files.h"

namespace vanzer {

QString percorsoScelto(const Form& form) {
    return QDir(form.archivio.PercorsoProgramma).filePath(form.stato.NomeFileScambio);
}

std::optional<QByteArray> readExchangeFile(Form& form) {
    const QString& name = form.stato.NomeFileScambio;
    FileLetto file = store::readFromOthers(percorsoScelto(form), form.archivio.PercorsoDatabase);
    if (file.errore.isEmpty())
        return std::move(file.contenuto);
    form.messaggio(
        QStringLiteral("Il file %1 non può essere letto:\n%2").arg(QDir::toNativeSeparators(name), file.errore),
        QStringLiteral("Import"), Icona::Avviso);
    return std::nullopt;
}

} // namespace vanzer
