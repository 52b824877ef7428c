// SPDX-License-Identifier: MIT
// Reads the legs of an itinerary from route lists that route planners save as text.
//
// Each line is a row, with columns separated by tabs. Three formats are known by their head row, which is one of the
// first 16 lines:
//
//     MapPoint, Italian     ...ora    km  istruzioni          time, kilometres from the start, what to do
//     MapPoint, English     ...time   km  instruction         the same
//     Autoroute, Route      ??località    direzione   distanza    ...     posizione opposta
//
// A row that names a place ends the current leg there. A row that only turns onto a road adds the road to the current
// leg. In the third format the column "posizione opposta" has the kilometres from the start.
#pragma once

#include <optional>
#include <vector>

#include <QByteArray>
#include <QString>

namespace vanzer {

enum class Pacchetto { Sconosciuto, MapPointItaliano, Autoroute, MapPointInglese };

struct TappaImportata {
    QString luogo;
    QString strade;
    int km = 0;            ///< from the leg before
    int kmProgressivo = 0; ///< from the start
    bool autostrada = false;
    bool traghetto = false;
};

struct PercorsoImportato {
    Pacchetto formato = Pacchetto::Sconosciuto;
    std::vector<TappaImportata> tappe;
};

/// The road that an instruction leads to, which stands after "onto", "su", "on" or "[". It is the content of the last
/// brackets, if that is digits and capitals alone. Otherwise it is the last run of at least two digits or capitals.
/// Empty if there is no such run. No value if the instruction has none of these four words.
[[nodiscard]] std::optional<QString> RilevaStradaCorrente(const QString& instruction);

/// Reads a whole file. Rows that name nothing, or lack columns, give no leg.
[[nodiscard]] PercorsoImportato readPackage(const QByteArray& contents);

} // namespace vanzer
