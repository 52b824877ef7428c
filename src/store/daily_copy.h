// A copy of the archive for each day on which it was opened, in a folder beside it.
#pragma once

#include <vector>

#include <QDate>
#include <QString>

#include "store/database.h"

namespace vanzer::store {

/// Copies of so many days are kept, and the newest of each of so many weeks and months that have one.
inline constexpr int giorniTenuti = 10;
inline constexpr int settimaneTenute = 8;
inline constexpr int mesiTenuti = 12;

/// Copies an open archive to "Copie/Vanzer 2026-11-23.mdb" beside it, unless it is there already, and takes away the
/// copies that are too many. A copy has its name when it is whole and safe on the disk, and the rights of the archive;
/// one that `progress` leaves, or that fails, leaves nothing. Throws StoreError; Corrupt, with the archive's own path,
/// if the archive is damaged inside: then the older copies stay, all of them.
void makeDailyCopy(Database& archive, const QDate& day, const Database::CopyProgress& progress);

/// Whether the day has no copy yet.
[[nodiscard]] bool copyDue(const QString& archivePath, const QDate& day);

/// The folder of the copies beside an archive.
[[nodiscard]] QString cartellaCopie(const QString& archivePath);

/// Copies an open archive into that folder under the name, with the archive's rights: the copy has its name when it is
/// whole, found sound and safe on the disk. False if `progress` left it; then, and when it throws, nothing is left of
/// it.
[[nodiscard]] bool makeWholeCopy(Database& archive, const QString& name, const Database::CopyProgress& progress);

struct CopiaTrovata {
    QString path; ///< full
    QDate day;
    int mete = -1; ///< trips that it holds; -1 if it can't be read
};

/// The copies beside an archive, the newest first. Nothing is made beside them.
[[nodiscard]] std::vector<CopiaTrovata> copieAccanto(const QString& archivePath);

/// Which of them, the newest first, are too many; today's distance to them doesn't matter. Those of days to come, from
/// when the clock was wrong, are counted apart: as many as the days that are kept. Of both kinds the newest of those
/// with the most trips stays, whatever its day; one that can't be read counts as empty.
[[nodiscard]] std::vector<CopiaTrovata> copieDaTogliere(const std::vector<CopiaTrovata>& copies, const QDate& today);

/// Full path of the newest copy beside an archive; empty if there is none.
[[nodiscard]] QString ultimaCopia(const QString& archivePath);

} // namespace vanzer::store
