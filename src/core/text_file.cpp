#include "core/text_file.h"

#include <QSaveFile>

#include "core/code_page.h"

namespace vanzer {

QString scriveFileTesto(const QString& path, const QStringList& lines) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    for (const QString& line : lines)
        file.write(toCodePage(line) + "\r\n");
    // Without the flush a disk that is full at the last part would go unseen.
    return file.flush() && file.commit() ? QString() : file.errorString();
}

} // namespace vanzer
