// SPDX-License-Identifier: MIT
// Codes of enabled buttons. PulsantiMeta and PulsantiItinerario hold two letters for each enabled button, or one of a
// few words. These are the texts that commands store there.
#pragma once

#include <QString>

namespace vanzer::pulsanti {

inline const QString tutti = QStringLiteral("all"); ///< replaced by the codes of all buttons of the group
inline const QString nessuno = QStringLiteral("zz");
inline const QString nessunoMaiuscolo = QStringLiteral("ZZ"); ///< as `nessuno`, but scripts can tell them apart

inline const QString archivioVuoto = QStringLiteral("NuImEs");
inline const QString viaggioNuovo = QStringLiteral("NuSaEs");
inline const QString viaggioNuovoFraAltri = QStringLiteral("NuSaEsRi");
inline const QString duranteLaRicerca = QStringLiteral("NuEs");
inline const QString soloStop = QStringLiteral("Es"); ///< work that the user can stop is running
inline const QString soloCalcola = QStringLiteral("Ca");
inline const QString conViandoria = QStringLiteral("CaSt");  ///< the table is locked
inline const QString duranteLaStampa = QStringLiteral("vv"); ///< all off, also with a locked table
inline const QString conTappeAperte = QStringLiteral("F");   ///< the leg editor is open: the whole menu is off
inline const QString soloFine = QStringLiteral("Fi");        ///< in the leg editor, while its list or a copy is open

} // namespace vanzer::pulsanti
