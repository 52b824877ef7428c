// The codes of the buttons: PulsantiMeta and PulsantiItinerario are made of two letters for each button that is on, or
// are one of a few words. These are the texts that the commands put there.
#pragma once

#include <QString>

namespace vanzer::pulsanti {

inline const QString tutti = QStringLiteral("all"); ///< becomes the codes of all of the group
inline const QString nessuno = QStringLiteral("zz");
inline const QString nessunoMaiuscolo = QStringLiteral("ZZ"); ///< the same: a script sees which of the two was written

inline const QString archivioVuoto = QStringLiteral("NuImEs");
inline const QString viaggioNuovo = QStringLiteral("NuSaEs");
inline const QString viaggioNuovoFraAltri = QStringLiteral("NuSaEsRi");
inline const QString duranteLaRicerca = QStringLiteral("NuEs");
inline const QString soloStop = QStringLiteral("Es"); ///< work that can be given up is running
inline const QString soloCalcola = QStringLiteral("Ca");
inline const QString conViandoria = QStringLiteral("CaSt");  ///< the table is locked
inline const QString duranteLaStampa = QStringLiteral("vv"); ///< all off, a locked table or not
inline const QString conTappeAperte = QStringLiteral("F");   ///< the leg editor is open: all of the menu off
inline const QString soloFine = QStringLiteral("Fi");        ///< of the leg editor, while its list or a copy is open

} // namespace vanzer::pulsanti
