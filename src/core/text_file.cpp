#include "core/text_file.h"

#include <QFileInfo>
#include <QSaveFile>

#include "core/code_page.h"

namespace vanzer {

QString motivoNonScritto(const QString& path) {
    const QFileInfo file(path);
    const QFileInfo folder(file.absolutePath());
    if (!folder.isDir())
        return QStringLiteral("la sua cartella non c'è.");
    if (!folder.isWritable() || file.isDir() || (file.exists() && !file.isWritable()))
        return QStringLiteral("lì non è permesso scrivere.");
    return QStringLiteral("il disco è pieno o protetto.");
}

QString scriveFileTesto(const QString& path, const QStringList& lines) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return motivoNonScritto(path);
    for (const QString& line : lines)
        file.write(toCodePage(line) + "\r\n");
    // Without the flush a disk that is full at the last part would go unseen.
    return file.flush() && file.commit() ? QString() : motivoNonScritto(path);
}

} // namespace vanzer
