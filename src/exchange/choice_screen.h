// The choice of the destinations that go out or come in: the two lists and the buttons between them.
#pragma once

#include "exchange/exchange_screen.h"

namespace vanzer {

/// The filter of both file dialogs.
inline constexpr QStringView filtroScambio = u"File Export da Vanzerosa!!! (*.iei)|*.iei";

/// Columns of the lists.
enum ColonnaScambio { scambioNumero, scambioMeta, scambioNazione, scambioCodice };

/// What the caption of the button that carries the work out says.
[[nodiscard]] bool importaScelto(const Form& form);

/// Clears the main screen and lays out the two lists.
void PreparaExportImport(Form& form);
/// Lays the lists out and offers the destinations of a file for an import.
void ElencaFileScambio(Form& form, const QString& path);
/// All destinations of the archive into the first list; false if there are none.
[[nodiscard]] bool CaricaListaMete(Form& form);
/// The current row of list n goes to the other one.
void TrasferisceMetaImportExport(Form& form, int n);
/// Tidies the lists and sets the buttons.
void AggiornaPulsantiImportExport(Form& form);

/// The names of a table's fields, as the archive has them.
[[nodiscard]] QStringList campiDellaTabella(Form& form, int table);

/// The codes of the stored destinations, in their order.
[[nodiscard]] QStringList codiciMemorizzati(Form& form);
/// The codes of a list's rows that have one.
[[nodiscard]] QStringList codiciDellaLista(const Grid& list);

} // namespace vanzer
