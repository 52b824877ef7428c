// SPDX-License-Identifier: MIT
// The choice of the destinations to export or import: two lists, and the buttons between them.
#pragma once

#include "exchange/exchange_screen.h"

namespace vanzer {

/// The filter of both file dialogs.
inline constexpr QStringView filtroScambio = u"File Export da Vanzerosa!!! (*.iei)|*.iei";

/// Columns of the lists.
enum ColonnaScambio { scambioNumero, scambioMeta, scambioNazione, scambioCodice };

/// Whether the choice is for an import. The caption of the button that starts the work tells.
[[nodiscard]] bool importaScelto(const Form& form);

/// Clears the main screen and shows the two lists.
void PreparaExportImport(Form& form);
/// Shows the two lists, with the destinations of a file to import.
void ElencaFileScambio(Form& form, const QString& path);
/// Puts all destinations of the archive into the first list. False if there are none.
[[nodiscard]] bool CaricaListaMete(Form& form);
/// Moves the current row of list n to the other list.
void TrasferisceMetaImportExport(Form& form, int n);
/// Sorts the lists by name, packs their rows, and sets captions and states of the buttons.
void AggiornaPulsantiImportExport(Form& form);

/// The names of a table's fields in the archive.
[[nodiscard]] QStringList campiDellaTabella(Form& form, int table);

/// The codes of the stored destinations, in ascending order.
[[nodiscard]] QStringList codiciMemorizzati(Form& form);
/// The codes in a list. Rows without a code are left out.
[[nodiscard]] QStringList codiciDellaLista(const Grid& list);

} // namespace vanzer
