// SPDX-License-Identifier: MIT
// Writes files in the format of the earlier version: records of fixed length, texts padded with blanks.
#pragma once

#include <QFile>
#include <QStringList>

#include "core/code_page.h"
#include "store/old_files.h"

namespace vanzer {

/// A record with these texts in its first fields, and blanks in the others. A text that is too long is cut.
inline QByteArray oldRecord(const FormatoVecchio& format, const QStringList& texts) {
    QByteArray record;
    for (qsizetype i = 0; i < static_cast<qsizetype>(format.campi.size()); ++i) {
        const int width = format.campi[static_cast<std::size_t>(i)].larghezza;
        record += toCodePage(texts.value(i)).leftJustified(width, ' ', true);
    }
    return record.leftJustified(format.lunghezza, ' ');
}

inline QByteArray oldFile(const FormatoVecchio& format, const QList<QStringList>& records) {
    QByteArray contents;
    for (const QStringList& texts : records)
        contents += oldRecord(format, texts);
    return contents;
}

/// An itinerary with its head. `count` can differ from the number of legs.
inline QByteArray oldItinerary(const QList<QStringList>& legs, const QString& count = {}) {
    const QString told = count.isEmpty() ? QString::number(legs.size()) : count;
    return oldFile(vecchieTappe(), QList<QStringList>{{told, told}} + legs);
}

inline bool writeOldFile(const QString& path, const QByteArray& contents) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size();
}

} // namespace vanzer
