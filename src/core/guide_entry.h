// An entry of the guide as a plain value, and the time that it takes.
#pragma once

#include <vector>

#include <QString>

namespace vanzer {

struct VoceGuida {
    qint64 rowid = 0;
    QString tempoSosta; ///< "hh:mm"; "G" and a number of whole visiting days in place of the hours
    int codice = 0;     ///< category
    QString gruppo;
    QString descrizione;
};

using VociGuida = std::vector<VoceGuida>;

/// Who reads the time of an entry. The two differ for what the editor never writes.
enum class LetturaTempo {
    Itinerario, ///< the load of an itinerary: one digit of days, two of hours
    Viandoria   ///< the preparation of a calculation: all digits of days, a time without leading zeros
};

/// Time of an entry in hundredths of an hour, minutes rounded to the nearest; a visiting day has `visitingDay` of them.
[[nodiscard]] float tempoVoce(const QString& tempoSosta, float visitingDay, LetturaTempo reading);

} // namespace vanzer
