// SPDX-License-Identifier: MIT
// The text files of a print: the schedule as a table, the list of places by nation, and the command line for the
// program of the logbook forms. The lines have no line ends.
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
/// A row as a line. A tab follows each cell.
[[nodiscard]] QString rigaTabella(int row, const CellaViandoria& cell);

/// The lines of "ListaLocalita.txt": nation and place of each leg. The nation is the last one that a leg has entered.
[[nodiscard]] QStringList listaLocalita(int rows, const CellaViandoria& cell);

/// The trip for the logbook forms: name, first and last day.
[[nodiscard]] QString viaggioPerModuli(const QString& trip, const std::array<QString, 3>& first,
                                       const std::array<QString, 3>& last);
/// The line of "CommandLine.txt". `directory` has no separator at its end.
[[nodiscard]] QString comandoModuli(const QString& directory, const QString& trip);

} // namespace vanzer
