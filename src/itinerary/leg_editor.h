// The rules of the leg editor, apart from the window.
#pragma once

#include <optional>

#include <QString>

namespace vanzer {

inline constexpr QStringView senzaSosta = u"00:00:00";

/// The stop of a row taken apart.
struct SostaConFine {
    QString durata; ///< gg:hh:mm
    bool fineGiornata = false;
};
[[nodiscard]] SostaConFine splitStop(const QString& cell);

/// Index of a row's road type; none if the row has no such letter.
[[nodiscard]] std::optional<int> tipoStrada(const QString& cell);

/// Without every occurrence of the mark, case ignored, trimmed.
[[nodiscard]] QString senzaMarca(const QString& cell, QStringView mark);

/// What the user typed for a row, and what stands above it.
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
    bool kmComeTotale = false; ///< kilometres above those are a running total
};

enum class Rifiuto {
    Nessuno,
    KmTroppi, ///< above 999
    LuogoMancante,
    KmELuogo,       ///< both of these
    NienteDaSegnare ///< a later row without kilometres, stop, end of day or ferry
};

struct TappaControllata {
    Rifiuto rifiuto = Rifiuto::Nessuno;
    QString km;          ///< as typed, or less what stands above where a running total was typed
    bool totale = false; ///< such a one was typed
    QString luogo;       ///< with its marks
    QString lettera;
    QString sosta; ///< the cell: empty for none, "*" in front for the end of the day
};

[[nodiscard]] TappaControllata checkLeg(const TappaDigitata& typed);

/// Whether running kilometres are typed behind a row that shows so many.
[[nodiscard]] bool kmProgressivi(double kmPrecedenti);

} // namespace vanzer
