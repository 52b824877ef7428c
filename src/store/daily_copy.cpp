#include "store/daily_copy.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "store/safe_files.h"

namespace vanzer::store {

namespace {

constexpr QLatin1String folderName("Copie");
constexpr QLatin1String unfinished(".parte");

QDir folderOf(const QString& archivePath) {
    return {QFileInfo(archivePath).absolutePath() + u'/' + folderName};
}

const QString nameOfDay = QStringLiteral("'Vanzer 'yyyy-MM-dd'.mdb'");

/// The newest first: the names stand in the order of their days. What else lies there is the user's own.
QStringList copiesIn(const QDir& folder) {
    QStringList names = folder.entryList({QStringLiteral("Vanzer *.mdb")}, QDir::Files, QDir::Name | QDir::Reversed);
    names.removeIf([](const QString& name) { return !QDate::fromString(name, nameOfDay).isValid(); });
    return names;
}

/// What was left by a program that was killed while it made a copy.
void removeUnfinished(const QDir& folder) {
    for (const QString& name :
         folder.entryList({u'*' + unfinished, u'*' + unfinished + QStringLiteral("-journal")}, QDir::Files))
        toglieFile(folder.filePath(name));
}

void removeOldest(const QDir& folder, const QString& made) {
    QStringList others = copiesIn(folder);
    others.removeOne(made);
    for (const QString& name : others.mid(copieTenute - 1))
        QFile::remove(folder.filePath(name));
}

/// False if it was left.
bool copyTo(Database& archive, const QString& path, const Database::CopyProgress& progress) {
    const auto copy = Database::crea(path);
    if (!archive.copiaIn(*copy, progress))
        return false;
    if (!copy->intatto())
        throw StoreError(StoreError::Kind::Corrupt, archive.percorso());
    return true;
}

} // namespace

void copiaDelGiorno(Database& archive, const QDate& day, const Database::CopyProgress& progress) {
    const QDir folder = folderOf(archive.percorso());
    const QString name = day.toString(nameOfDay);
    if (folder.exists(name))
        return;
    if (!folder.mkpath(QStringLiteral(".")))
        throw StoreError(StoreError::Kind::ReadOnly, folder.filePath(name));
    removeUnfinished(folder);
    const QString temporary = folder.filePath(name + unfinished);
    try {
        if (!copyTo(archive, temporary, progress)) {
            toglieFile(temporary);
            return;
        }
        toglieResti(temporary);
        metteAlPosto(temporary, folder.filePath(name));
    } catch (const StoreError&) {
        toglieFile(temporary);
        throw;
    }
    removeOldest(folder, name);
}

QString ultimaCopia(const QString& archivePath) {
    const QDir folder = folderOf(archivePath);
    const QStringList copies = copiesIn(folder);
    return copies.isEmpty() ? QString() : folder.filePath(copies.first());
}

} // namespace vanzer::store
