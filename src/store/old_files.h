// Where the files of an earlier generation lie: beside the archive, under names that capitals don't tell apart.
#pragma once

#include <functional>

#include <QString>
#include <QStringList>

namespace vanzer::store {

inline constexpr QStringView fileVecchieMete = u"VanzMete.dat";
inline constexpr QStringView fileVecchiaGuida = u"VanzGuid.dat";

/// The name of the old itinerary of a destination: "vanz", the last four characters of its code, ".dat". Empty if these
/// are no letters and digits, or if the file of that name is one of the other two.
[[nodiscard]] QString fileVecchieTappe(const QString& code);

/// The file of that name in the directory, capitals ignored; empty if there is none.
[[nodiscard]] QString oldFileIn(const QString& directory, QStringView name);

/// Whether old files lie in the directory: destinations, guide, or the itinerary of a destination with one of the
/// codes, which are asked for only where that matters.
[[nodiscard]] bool vecchiFileInAttesa(const QString& directory, const std::function<QStringList()>& codes);

} // namespace vanzer::store
