// SPDX-License-Identifier: MIT
// The rules of the leg editor that need no window.
#pragma once

#include <optional>

#include <QString>

namespace vanzer {

inline constexpr QStringView senzaSosta = u"00:00:00";

/// A row's stop in its parts.
struct SostaConFine {
    QString durata; ///< gg:hh:mm
    bool fineGiornata = false;
};
[[nodiscard]] SostaConFine splitStop(const QString& cell);

/// Index of a row's road type. No value if the row has no road-type letter.
[[nodiscard]] std::optional<int> tipoStrada(const QString& cell);

/// The cell without any occurrence of the mark, case ignored. Trimmed.
[[nodiscard]] QString senzaMarca(const QString& cell, QStringView mark);

/// What the user typed for a row, and the total of the row above.
struct TappaDigitata {
    int riga = 1;
    QString luogo;
    QString km;
    QString strada;
    QString lettera; ///< road type
    QString sosta;   ///< gg:hh:mm
    bool fineGiornata = false;
    bool primaMeta = false;
    bool ultimaMeta = false;
    double kmPrecedenti = 0;   ///< running kilometres of the row above
    bool kmComeTotale = false; ///< above kmPrecedenti the typed kilometres are a running total
};

enum class Rifiuto {
    Nessuno,
    KmTroppi, ///< above 999 km
    LuogoMancante,
    KmELuogo,       ///< both of these
    NienteDaSegnare ///< a later row without kilometres, stop, end of day or ferry
};

struct TappaControllata {
    Rifiuto rifiuto = Rifiuto::Nessuno;
    QString km;          ///< as typed; of a running total the difference from the row above
    bool totale = false; ///< a running total was typed
    QString luogo;       ///< with its marks
    QString lettera;
    QString sosta; ///< the cell: empty for none, "*" in front for the end of the day
};

[[nodiscard]] TappaControllata checkLeg(const TappaDigitata& typed);

/// Whether running kilometres are typed after a row that shows so many.
[[nodiscard]] bool kmProgressivi(double kmPrecedenti);

} // namespace vanzer
