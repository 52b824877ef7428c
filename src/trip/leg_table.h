// A leg as a row of the table and as the records that store it.
//
// A record holds at most 999 km: a longer leg is several records of one place, and comes back as several rows. The
// marks " [Start]" and " [End]" live in the place's name and nowhere else. No stored text is empty.
#pragma once

#include <vector>

#include <QString>

namespace vanzer {

/// Most records of one destination: the sequence has four digits.
inline constexpr int massimoTratti = 9999;
inline constexpr int massimoKmRecord = 999;

/// The cells of a row that are stored.
struct RigaTappa {
    QString luogo;
    QString strada;
    int km = 0;
    QString tipoStrada;
    QString sosta; ///< gg:hh:mm, with "*" in front for the end of the day
};

struct RecordTappa {
    QString localita;
    QString chilometri;
    QString nomeStrada;
    QString tipoStrada;
    QString tempoSosta;
    QString sostaGuidaCitta;
    bool fineGiorno = false;
};

/// The place as it is stored: cut to the field's size less 1.
[[nodiscard]] QString luogoMemorizzato(const QString& place, int fieldSize);

/// How many records a leg of so many kilometres takes.
[[nodiscard]] int numeroRecord(int km);

/// The records of one row; the sum of the guide's stops stands on the first of them.
[[nodiscard]] std::vector<RecordTappa> recordDellaRiga(const RigaTappa& row, const QString& guideStops, int placeSize);

/// Cell of the stop, from a record's texts.
[[nodiscard]] QString sostaDelRecord(const QString& fineGiorno, const QString& tempoSosta);

/// Which legs lie in the stretch that counts for the guide, seen record by record while an itinerary is loaded.
class TrattoDellaGuida {
  public:
    struct Passo {
        bool leggere = false; ///< the guide's entries of `luogo` are to be read
        QString luogo;
    };
    /// The next leg's place as it is stored.
    [[nodiscard]] Passo prossimo(const QString& localita);

  private:
    QString last_;
    bool start_ = false;
    bool end_ = false; ///< an end was met: a start behind it opens its own place alone
};

} // namespace vanzer
