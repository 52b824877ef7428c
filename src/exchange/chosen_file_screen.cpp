#include "exchange/chosen_file_screen.h"

#include <QDir>

#include "core/text_file.h"

namespace vanzer {

std::optional<QByteArray> leggeFileScambio(Form& form) {
    const QString& name = form.stato.NomeFileScambio;
    FileLetto file = leggeFile(QDir(form.archivio.PercorsoProgramma).filePath(name));
    if (file.errore.isEmpty())
        return std::move(file.contenuto);
    form.messaggio(
        QStringLiteral("Il file %1 non può essere letto:\n%2").arg(QDir::toNativeSeparators(name), file.errore),
        QStringLiteral("Import"), Icona::Avviso);
    return std::nullopt;
}

} // namespace vanzer
