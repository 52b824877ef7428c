#include "store/daily_copy.h"

#include <memory>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <sqlite3.h>

#include "store/safe_files.h"
#include "store/schema.h"

namespace vanzer::store {

namespace {

constexpr QLatin1String folderName("Copie");
constexpr QLatin1String unfinished(".parte");

QDir folderOf(const QString& archivePath) {
    return {QFileInfo(archivePath).absolutePath() + u'/' + folderName};
}

const QString nameOfDay = QStringLiteral("'Vanzer 'yyyy-MM-dd'.mdb'");

/// No date for any other name, be it only by a capital.
QDate dayOf(const QString& name) {
    const QDate day = QDate::fromString(name, nameOfDay);
    return day.toString(nameOfDay) == name ? day : QDate();
}

/// The newest first: the names stand in the order of their days. What else lies there is the user's own.
QStringList copiesIn(const QDir& folder) {
    QStringList names = folder.entryList({QStringLiteral("Vanzer *.mdb")}, QDir::Files, QDir::Name | QDir::Reversed);
    names.removeIf([](const QString& name) { return !dayOf(name).isValid(); });
    return names;
}

struct Closer {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
};

/// Opened as a file that nobody writes to: no lock, no journal, whatever its state.
int tripsIn(const QString& path) {
    QUrl name = QUrl::fromLocalFile(path);
    name.setQuery(QStringLiteral("immutable=1"));
    sqlite3* opened = nullptr;
    const int result = sqlite3_open_v2(name.toEncoded().constData(), &opened,
                                       SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX, nullptr);
    const std::unique_ptr<sqlite3, Closer> connection(opened);
    if (result != SQLITE_OK)
        return -1;
    try {
        // No index: their collation is the archive's own.
        Statement count(opened, "SELECT count(*) FROM " + TabelleNomi(MeteVanzer).toUtf8() + " NOT INDEXED", path);
        return count.step() ? static_cast<int>(count.integer(0)) : -1;
    } catch (const StoreError&) {
        return -1;
    }
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

std::vector<CopiaTrovata> copieAccanto(const QString& archivePath) {
    const QDir folder = folderOf(archivePath);
    std::vector<CopiaTrovata> found;
    for (const QString& name : copiesIn(folder)) {
        const QString path = folder.filePath(name);
        found.push_back({path, dayOf(name), tripsIn(path)});
    }
    return found;
}

QString ultimaCopia(const QString& archivePath) {
    const QDir folder = folderOf(archivePath);
    const QStringList copies = copiesIn(folder);
    return copies.isEmpty() ? QString() : folder.filePath(copies.first());
}

} // namespace vanzer::store
