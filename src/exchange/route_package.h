// The route lists that route planners save as text, read as the legs of an itinerary.
//
// A line is a row, its columns are separated by tabs. Three shapes are known by their head row, one of the first
// 16 lines:
//
//     MapPoint, Italian     ...ora    km  istruzioni          time, kilometres from the start, what to do
//     MapPoint, English     ...time   km  instruction         the same
//     Autoroute, Route      ??località    direzione   distanza    ...     posizione opposta
//
// A row that only turns onto a road adds the road to the leg under way; a row that names a place ends the leg there. In
// the third shape the kilometres from the start stand in the column "posizione opposta".
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

/// The road that an instruction goes on along: the last run of at least two digits or capitals behind "onto", "su",
/// "on" or "[", or what stands in the last brackets, if these hold nothing else. Empty if there is no such run; no
/// value if the instruction has none of the four.
[[nodiscard]] std::optional<QString> RilevaStradaCorrente(const QString& instruction);

/// Reads a whole file. Rows that say nothing, or lack columns, give no leg.
[[nodiscard]] PercorsoImportato readPackage(const QByteArray& contents);

} // namespace vanzer
