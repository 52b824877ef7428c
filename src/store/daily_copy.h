// SPDX-License-Identifier: MIT
// Daily copies of the archive, in a folder beside it: one for each day on which it was opened.
#pragma once

#include <vector>

#include <QDate>
#include <QString>

#include "store/database.h"

namespace vanzer::store {

/// How many copies are kept: those of the last days that have one, and the newest of each of the last weeks and months
/// that have one.
inline constexpr int giorniTenuti = 10;
inline constexpr int settimaneTenute = 8;
inline constexpr int mesiTenuti = 12;

/// Copies an open archive to "Copie/Vanzer 2026-11-23.mdb" beside it and removes surplus copies. Does nothing if the
/// day has a copy already. The copy gets its name when it is complete and safe on the disk, and has the archive's
/// permissions. If `progress` cancels or the copy fails, no part of it is left. Throws StoreError: Corrupt, with the
/// archive's path, if the archive is damaged; then all older copies stay.
void makeDailyCopy(Database& archive, const QDate& day, const Database::CopyProgress& progress);

/// True if the day has no copy yet.
[[nodiscard]] bool copyDue(const QString& archivePath, const QDate& day);

/// Path of the folder with the copies of an archive.
[[nodiscard]] QString cartellaCopie(const QString& archivePath);

/// Copies an open archive into that folder as `name`, with the archive's permissions. The copy gets its name when it is
/// complete, checked and safe on the disk. False if `progress` cancelled it. In that case, and when it throws, no part
/// of it is left.
[[nodiscard]] bool makeWholeCopy(Database& archive, const QString& name, const Database::CopyProgress& progress);

struct CopiaTrovata {
    QString path; ///< full
    QDate day;
    int mete = -1; ///< number of destinations in it; -1 if it can't be read
};

/// The copies of an archive, newest first. Writes nothing.
[[nodiscard]] std::vector<CopiaTrovata> copieAccanto(const QString& archivePath);

/// The surplus copies among `copies`, which must be sorted with the newest first. How long ago they were made doesn't
/// matter. Copies dated after `today`, made while the clock was wrong, are counted apart; the last `giorniTenuti` of
/// them stay. Among each kind the newest copy with the most destinations always stays. A copy that can't be read counts
/// as empty.
[[nodiscard]] std::vector<CopiaTrovata> copieDaTogliere(const std::vector<CopiaTrovata>& copies, const QDate& today);

/// Full path of the newest copy beside an archive; empty if there is none.
[[nodiscard]] QString ultimaCopia(const QString& archivePath);

} // namespace vanzer::store
