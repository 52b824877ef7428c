// SPDX-License-Identifier: MIT
// A stretch: a run of legs that get one road type together. Its two ends are kept as the texts that show them.
#pragma once

#include <QString>

namespace vanzer {

/// The text of a row as an end of the stretch: its number with at least four digits, road type and place. A row without
/// a number shows its position instead.
[[nodiscard]] QString testoEstremo(int riga, const QString& numero, const QString& tipoStrada, const QString& luogo);

struct TrattoScelto {
    QString prima;
    QString ultima;

    /// Makes the row the first or the last leg. The other end moves too if it isn't chosen yet or would be on the wrong
    /// side.
    void choose(bool comePrima, const QString& estremo);

    [[nodiscard]] bool isChosen() const { return !prima.isEmpty() && !ultima.isEmpty(); }
    /// Rows of the ends, from 1; 0 while the end isn't chosen.
    [[nodiscard]] int daRiga() const;
    [[nodiscard]] int aRiga() const;
    /// Number of legs in the stretch. 0 while an end isn't chosen.
    [[nodiscard]] int tappe() const;
};

/// The map of changes, with the rows from `da` to `a` marked in it.
[[nodiscard]] QString conModifiche(QString mappa, int da, int a);

} // namespace vanzer
