// A stretch: a run of legs that is given one road type at a go. Its two ends are kept as the texts that show them.
#pragma once

#include <QString>

namespace vanzer {

/// How a row shows as an end of the stretch: its number with at least four digits, road type and place. A row that has
/// no number yet is named by where it stands.
[[nodiscard]] QString testoEstremo(int riga, const QString& numero, const QString& tipoStrada, const QString& luogo);

struct TrattoScelto {
    QString prima;
    QString ultima;

    /// The row as first or last leg. An end that would stand the wrong way round, or isn't chosen yet, comes along.
    void choose(bool comePrima, const QString& estremo);

    [[nodiscard]] bool isChosen() const { return !prima.isEmpty() && !ultima.isEmpty(); }
    /// Rows of the ends, from 1; 0 while the end isn't chosen.
    [[nodiscard]] int daRiga() const;
    [[nodiscard]] int aRiga() const;
    /// Legs in the stretch; 0 while an end isn't chosen.
    [[nodiscard]] int tappe() const;
};

/// The map of the changes with the rows from `da` to `a` marked.
[[nodiscard]] QString conModifiche(QString mappa, int da, int a);

} // namespace vanzer
