// SPDX-License-Identifier: MIT
// How to show a row of the table. The texts of the row decide; the view only picks colours.
#pragma once

#include <functional>
#include <span>
#include <vector>

#include <QString>

namespace vanzer {

/// How to show a row of the leg table, of the schedule or of the guide.
struct AspettoRiga {
    enum class Tipo {
        Vuota,        ///< no place
        Tappa,        ///< a leg, or a piece of one
        Sosta,        ///< a stop, or an entry without a time
        NuovoGiorno,  ///< the start of the day after an ordered end of the day
        TitoloTotale, ///< a closing row that names a sum
        Totale,       ///< a closing row that holds the sum
        Luogo,        ///< a place of the guide
        Voce          ///< an entry of a place
    };
    Tipo tipo = Tipo::Vuota;
    bool viandoria = false;    ///< a row of a computed schedule, not of the leg table
    int giorno = 0;            ///< counts up from 0 at each change of date; always 0 in the leg table
    int categoria = 0;         ///< number of an entry's category; 0 if unknown
    bool fineGiornata = false; ///< schedule: the last row of its day; leg table: a leg that ends a day
};

/// The looks of rows 0 to `rows` - 1, element i for row i. `cell(row, column)` gives their texts. Row 0 is the head
/// row; it tells whether this is the guide, and its own element has no meaning. `categories` are the names of the
/// guide's categories by number.
[[nodiscard]] std::vector<AspettoRiga> aspettoRighe(int rows,
                                                    const std::function<const QString&(int row, int column)>& cell,
                                                    std::span<const QString> categories);

} // namespace vanzer
