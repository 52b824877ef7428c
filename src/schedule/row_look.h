// How a row of the table is to be shown, told from its texts: the view picks colours and nothing else.
#pragma once

#include <functional>
#include <span>
#include <vector>

#include <QString>

namespace vanzer {

/// How a row of the leg table, of the schedule or of the guide is to be shown.
struct AspettoRiga {
    enum class Tipo {
        Vuota,        ///< no place
        Tappa,        ///< a leg, or a driven piece
        Sosta,        ///< a stop or a mention
        NuovoGiorno,  ///< the start of a day that follows an ordered end of the day
        TitoloTotale, ///< the closing rows: what a sum is of
        Totale,       ///< and the sum
        Luogo,        ///< a place of the guide
        Voce          ///< and one of its entries
    };
    Tipo tipo = Tipo::Vuota;
    bool viandoria = false;    ///< a row of a computed schedule, not of the leg table
    int giorno = 0;            ///< counts up from 0 at each change of date; 0 throughout the leg table
    int categoria = 0;         ///< of an entry: its number, 0 for one that isn't known
    bool fineGiornata = false; ///< in the schedule the last row of its day, in the leg table a leg that ends one
};

/// `cell(row, column)` gives the texts of rows 0 to `rows` - 1; row 0 is the head row, which tells the guide from the
/// rest. `categories` are the names of the guide's categories by their numbers. Element i is row i; element 0 says
/// nothing.
[[nodiscard]] std::vector<AspettoRiga> aspettoRighe(int rows,
                                                    const std::function<const QString&(int row, int column)>& cell,
                                                    std::span<const QString> categories);

} // namespace vanzer
