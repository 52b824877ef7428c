// SPDX-License-Identifier: MIT
// Layouts of the grids (headings, widths and alignments), and the selection of a block of cells.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Width of the table with nothing beside it, in twips.
inline constexpr int larghezzaTabella = 14280;

enum class Disposizione { Tappe = 1, Guida = 2, TappeDaCopiare = 3, Mete = 4, RigheDiLavoro = 5 };

/// Applies a layout to its grid. Does nothing for a number outside 1 to 5. Headings that the layout doesn't name stay.
void ImpostaGriglia(Form& form, int n);
inline void ImpostaGriglia(Form& form, Disposizione d) {
    ImpostaGriglia(form, static_cast<int>(d));
}

/// Applies the layout for a list of destinations to export or import.
void ImpostaListaScambio(Grid& list);

/// Selects a block of the table. Rows and columns outside the table are clamped; an end column above 20 means the last
/// one. If the first row is above the visible part, the table scrolls to it.
void SelezioneGriglia(Form& form, int riga, int rigaFine, int colonna, int colonnaFine);
/// Selects the whole row.
void SelezionaRiga(Form& form, int riga);

} // namespace vanzer
