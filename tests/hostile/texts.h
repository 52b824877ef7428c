// What is typed: texts of every kind, places, character codes, names of files.
#pragma once

#include <QStringList>

namespace vanzer::hostile {

/// Texts that no place, number or hour was ever meant to be; with the escapes of a command line.
[[nodiscard]] const QStringList& texts();
/// Texts with the marks of the first and the last real destination.
[[nodiscard]] const QStringList& marks();
[[nodiscard]] const QStringList& places();
[[nodiscard]] const QStringList& keyCodes();
/// Most of them lie in the folders that scripts begin with.
[[nodiscard]] const QStringList& files();

} // namespace vanzer::hostile
