// SPDX-License-Identifier: MIT
#include "store/daily_copy.h"

#include <algorithm>
#include <memory>
#include <set>
#include <span>

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

const QString nameOfDay = QStringLiteral("'Vanzer 'yyyy-MM-dd'.mdb'");

/// The date in a copy's name; an invalid date if the name differs in any way, even in case.
QDate dayOf(const QString& name) {
    const QDate day = QDate::fromString(name, nameOfDay);
    return day.toString(nameOfDay) == name ? day : QDate();
}

/// Names of the copies, newest first: names sort by date. Other files belong to the user and are left out.
QStringList copiesIn(const QDir& folder) {
    QStringList names = folder.entryList({QStringLiteral("Vanzer *.mdb")}, QDir::Files, QDir::Name | QDir::Reversed);
    names.removeIf([](const QString& name) { return !dayOf(name).isValid(); });
    return names;
}

struct Closer {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
};

/// Number of destinations in a copy, -1 if it can't be read. Opens it as immutable: without lock and journal.
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
        // No index: the indexes use a collation that this connection doesn't have.
        Statement count(opened, "SELECT count(*) FROM " + TabelleNomi(MeteVanzer).toUtf8() + " NOT INDEXED", path);
        return count.step() ? static_cast<int>(count.integer(0)) : -1;
    } catch (const StoreError&) {
        return -1;
    }
}

/// Removes copies that a killed program left unfinished.
void removeUnfinished(const QDir& folder) {
    for (QString name : folder.entryList({QStringLiteral("Vanzer *") + unfinished + u'*'}, QDir::Files)) {
        name.truncate(name.lastIndexOf(unfinished));
        if (dayOf(name).isValid())
            removeFile(folder.filePath(name + unfinished));
    }
}

std::vector<CopiaTrovata> found(const QDir& folder) {
    std::vector<CopiaTrovata> copies;
    for (const QString& name : copiesIn(folder))
        copies.push_back({folder.filePath(name), dayOf(name)});
    return copies;
}

void countTrips(std::vector<CopiaTrovata>& copies) {
    for (CopiaTrovata& copy : copies)
        copy.mete = tripsIn(copy.path);
}

/// Looks at the dates first: on most days no copy is surplus, and none has to be opened.
void removeTooMany(const QDir& folder, const QDate& today) {
    std::vector<CopiaTrovata> copies = found(folder);
    if (copieDaTogliere(copies, today).empty())
        return;
    countTrips(copies);
    for (const CopiaTrovata& copy : copieDaTogliere(copies, today))
        QFile::remove(copy.path);
}

using Copies = std::span<const CopiaTrovata>; // newest first

constexpr qint64 dayNumber(const QDate& day) {
    return day.toJulianDay();
}
/// Weeks begin on Monday: Julian day 0 was one.
constexpr qint64 weekNumber(const QDate& day) {
    return day.toJulianDay() / 7;
}
qint64 monthNumber(const QDate& day) {
    return qint64{day.year()} * 12 + day.month();
}

void keepNewestOfEach(qint64 (*spanOf)(const QDate&), std::size_t most, Copies copies, std::set<QDate>& kept) {
    std::set<qint64> spans;
    for (const CopiaTrovata& copy : copies) {
        if (!spans.insert(spanOf(copy.day)).second)
            continue;
        if (spans.size() > most)
            return;
        kept.insert(copy.day);
    }
}

void keepNewestOfFullest(Copies copies, std::set<QDate>& kept) {
    const auto trips = [](const CopiaTrovata& copy) { return std::max(copy.mete, 0); };
    if (const auto fullest = std::ranges::max_element(copies, {}, trips); fullest != copies.end())
        kept.insert(fullest->day);
}

/// False if `progress` cancelled the copy.
bool copyTo(Database& archive, const QString& path, const Database::CopyProgress& progress) {
    copyRights(archive.percorso(), path);
    const auto copy = Database::create(path);
    if (!archive.copyInto(*copy, progress))
        return false;
    if (!copy->intatto())
        throw StoreError(StoreError::Kind::Corrupt, archive.percorso());
    copy->makeDistinct(); // put in the archive's place, it must be told from the archive
    return true;
}

} // namespace

QString cartellaCopie(const QString& archivePath) {
    return QFileInfo(archivePath).absolutePath() + u'/' + folderName;
}

bool copyDue(const QString& archivePath, const QDate& day) {
    return !QDir(cartellaCopie(archivePath)).exists(day.toString(nameOfDay));
}

void makeDailyCopy(Database& archive, const QDate& day, const Database::CopyProgress& progress) {
    if (!copyDue(archive.percorso(), day))
        return;
    const QDir folder(cartellaCopie(archive.percorso()));
    removeUnfinished(folder);
    if (makeWholeCopy(archive, day.toString(nameOfDay), progress))
        removeTooMany(folder, day);
}

bool makeWholeCopy(Database& archive, const QString& name, const Database::CopyProgress& progress) {
    const QDir folder(cartellaCopie(archive.percorso()));
    if (!cartellaPer(archive.percorso(), folder.path()))
        throw StoreError(StoreError::Kind::ReadOnly, folder.filePath(name));
    const QString temporary = folder.filePath(name + unfinished);
    try {
        if (!copyTo(archive, temporary, progress)) {
            removeFile(temporary);
            return false;
        }
        removeRemains(temporary);
        putInPlace(temporary, folder.filePath(name));
        return true;
    } catch (const StoreError&) {
        removeFile(temporary);
        throw;
    }
}

std::vector<CopiaTrovata> copieDaTogliere(const std::vector<CopiaTrovata>& copies, const QDate& today) {
    const auto past = std::ranges::find_if(copies, [&today](const CopiaTrovata& copy) { return copy.day <= today; });
    const Copies toCome(copies.begin(), past);
    const Copies real(past, copies.end());
    std::set<QDate> kept;
    keepNewestOfEach(dayNumber, giorniTenuti, real, kept);
    keepNewestOfEach(weekNumber, settimaneTenute, real, kept);
    keepNewestOfEach(monthNumber, mesiTenuti, real, kept);
    keepNewestOfFullest(real, kept);
    std::set<QDate> keptToCome;
    keepNewestOfFullest(toCome, keptToCome);
    for (auto copy = toCome.begin(); copy != toCome.end() && keptToCome.size() < giorniTenuti; ++copy)
        keptToCome.insert(copy->day);
    kept.merge(keptToCome);
    std::vector<CopiaTrovata> tooMany;
    std::ranges::remove_copy_if(copies, std::back_inserter(tooMany),
                                [&kept](const CopiaTrovata& copy) { return kept.contains(copy.day); });
    return tooMany;
}

std::vector<CopiaTrovata> copieAccanto(const QString& archivePath) {
    std::vector<CopiaTrovata> copies = found(QDir(cartellaCopie(archivePath)));
    countTrips(copies);
    return copies;
}

QString ultimaCopia(const QString& archivePath) {
    const QDir folder(cartellaCopie(archivePath));
    const QStringList copies = copiesIn(folder);
    return copies.isEmpty() ? QString() : folder.filePath(copies.first());
}

} // namespace vanzer::store
