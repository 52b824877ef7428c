// SPDX-License-Identifier: MIT
// An entry of the guide as a plain value, and the time that its visit takes.
#pragma once

#include <vector>

#include <QString>

namespace vanzer {

struct VoceGuida {
    qint64 rowid = 0;
    QString tempoSosta; ///< "hh:mm"; for whole visiting days "G" and their number in place of the hours
    int codice = 0;     ///< category
    QString gruppo;
    QString descrizione;
};

using VociGuida = std::vector<VoceGuida>;

/// Two ways to read the time of an entry. They differ only for texts that the editor never writes.
enum class LetturaTempo {
    Itinerario, ///< loading an itinerary: one digit of days, two digits of hours
    Viandoria   ///< preparing a calculation: all digits of days, hours without leading zeros too
};

/// Time of an entry in hundredths of an hour, minutes rounded to the nearest. `visitingDay` is the length of a visiting
/// day, also in hundredths of an hour.
[[nodiscard]] float tempoVoce(const QString& tempoSosta, float visitingDay, LetturaTempo reading);

} // namespace vanzer
