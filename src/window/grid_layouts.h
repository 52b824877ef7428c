// The uses of the grids: heads, widths and alignments of each, and the selection of a block of cells.
#pragma once

#include "window/form.h"

namespace vanzer {

/// The table's width with nothing beside it, in twips.
inline constexpr int larghezzaTabella = 14280;

enum class Disposizione { Tappe = 1, Guida = 2, TappeDaCopiare = 3, Mete = 4, RigheDiLavoro = 5 };

/// Lays out the grid that the layout belongs to; a number outside 1 to 5 does nothing. Heads that the layout doesn't
/// name stay as they are.
void ImpostaGriglia(Form& form, int n);
inline void ImpostaGriglia(Form& form, Disposizione d) {
    ImpostaGriglia(form, static_cast<int>(d));
}

/// Lays out a list of destinations to be exchanged.
void ImpostaListaScambio(Grid& list);

/// Selects a block of the table; rows and columns are kept inside it, an end column above 20 means the last one. A row
/// above the visible part comes into view.
void SelezioneGriglia(Form& form, int riga, int rigaFine, int colonna, int colonnaFine);
/// Marks the whole row.
void SelezionaRiga(Form& form, int riga);

} // namespace vanzer
