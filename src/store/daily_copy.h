// A copy of the archive for each day on which it was opened, in a folder beside it.
#pragma once

#include <vector>

#include <QDate>
#include <QString>

#include "store/database.h"

namespace vanzer::store {

inline constexpr int copieTenute = 10;

/// Copies an open archive to "Copie/Vanzer 2026-11-23.mdb" beside it, unless it is there already, and takes away all
/// copies but the ten newest. A copy has its name when it is whole and safe on the disk; one that `progress` leaves, or
/// that fails, leaves nothing. Throws StoreError; Corrupt, with the archive's own path, if the archive is damaged
/// inside: then the older copies stay, all of them.
void copiaDelGiorno(Database& archive, const QDate& day, const Database::CopyProgress& progress);

struct CopiaTrovata {
    QString path; ///< full
    QDate day;
    int mete = -1; ///< trips that it holds; -1 if it can't be read
};

/// The copies beside an archive, the newest first. Nothing is made beside them.
[[nodiscard]] std::vector<CopiaTrovata> copieAccanto(const QString& archivePath);

/// Full path of the newest copy beside an archive; empty if there is none.
[[nodiscard]] QString ultimaCopia(const QString& archivePath);

} // namespace vanzer::store
