// The text files of a print: the schedule as a table, the list of places by nation, and the line that starts the
// program of the logbook forms. Lines without their ends.
#pragma once

#include <array>
#include <functional>

#include <QString>
#include <QStringList>

namespace vanzer {

/// A cell of the schedule by row and column.
using CellaViandoria = std::function<const QString&(int row, int column)>;

/// The first three lines of "Vanztabl.txt".
[[nodiscard]] QStringList intestazioneTabella(const QString& trip);
/// The line of a row: each cell closed by a tab.
[[nodiscard]] QString rigaTabella(int row, const CellaViandoria& cell);

/// "ListaLocalita.txt": nation and place of each leg. A leg that enters a nation names the nation of those behind it.
[[nodiscard]] QStringList listaLocalita(int rows, const CellaViandoria& cell);

/// The trip for the logbook forms: name, first and last day.
[[nodiscard]] QString viaggioPerModuli(const QString& trip, const std::array<QString, 3>& first,
                                       const std::array<QString, 3>& last);
/// The line of "CommandLine.txt"; the directory has no separator at its end.
[[nodiscard]] QString comandoModuli(const QString& directory, const QString& trip);

} // namespace vanzer
