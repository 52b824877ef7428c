#include "exchange/chosen_file_screen.h"

#include <QDir>

#include "core/disk.h"
#include "core/text_file.h"

namespace vanzer {

bool sceltoLArchivio(const Form& form) {
    return stessoFile(QDir(form.archivio.PercorsoProgramma).filePath(form.stato.NomeFileScambio),
                      form.archivio.PercorsoDatabase);
}

std::optional<QByteArray> leggeFileScambio(Form& form) {
    const QString& name = form.stato.NomeFileScambio;
    // Whoever opens and closes the archive's file besides the archive lets go of its lock.
    FileLetto file = sceltoLArchivio(form) ? FileLetto{{}, QStringLiteral("è l'archivio stesso.")}
                                           : leggeFile(QDir(form.archivio.PercorsoProgramma).filePath(name));
    if (file.errore.isEmpty())
        return std::move(file.contenuto);
    form.messaggio(
        QStringLiteral("Il file %1 non può essere letto:\n%2").arg(QDir::toNativeSeparators(name), file.errore),
        QStringLiteral("Import"), Icona::Avviso);
    return std::nullopt;
}

} // namespace vanzer
