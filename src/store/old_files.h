// SPDX-License-Identifier: MIT
// Finds the old files beside the archive. Case of their names is ignored.
#pragma once

#include <functional>

#include <QString>
#include <QStringList>

namespace vanzer::store {

inline constexpr QStringView fileVecchieMete = u"VanzMete.dat";
inline constexpr QStringView fileVecchiaGuida = u"VanzGuid.dat";

/// File name of a destination's old itinerary: "vanz", the last four characters of its code, ".dat". Empty if these
/// aren't letters and digits, or if the name is that of one of the other two files.
[[nodiscard]] QString fileVecchieTappe(const QString& code);

/// Path of the file of that name in the directory, case ignored; empty if there is none.
[[nodiscard]] QString oldFileIn(const QString& directory, QStringView name);

/// True if the directory has old files: destinations, guide, or the itinerary of a destination with one of the codes.
/// Calls `codes` only if needed.
[[nodiscard]] bool vecchiFileInAttesa(const QString& directory, const std::function<QStringList()>& codes);

} // namespace vanzer::store
