// SPDX-License-Identifier: MIT
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

/// The cells of a row that go to the archive.
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
    QString tempoSosta;      ///< gg:hh:mm; a blank for none
    QString sostaGuidaCitta; ///< gg:hh:mm; a blank for none
    bool fineGiorno = false;
};

/// The place as the archive stores it: cut to one character less than the field holds.
[[nodiscard]] QString luogoMemorizzato(const QString& place, int fieldSize);

/// The number of records that a leg of `km` kilometres needs.
[[nodiscard]] int numeroRecord(int km);

/// The records of one row. The first one holds the sum of the guide's stops.
[[nodiscard]] std::vector<RecordTappa> recordDellaRiga(const RigaTappa& row, const QString& guideStops, int placeSize);

/// The stop's cell, made from the texts of a record.
[[nodiscard]] QString sostaDelRecord(const QString& fineGiorno, const QString& tempoSosta);

/// Tells which legs belong to the stretch that the guide covers. Takes the records one by one, as an itinerary loads.
class TrattoDellaGuida {
  public:
    struct Passo {
        bool leggere = false; ///< read the guide's entries of `luogo`
        QString luogo;
    };
    /// Takes the next leg's place, as it is stored.
    [[nodiscard]] Passo prossimo(const QString& localita);

  private:
    QString last_;
    bool start_ = false;
    bool end_ = false; ///< an end was met: a later start covers only its own place
};

} // namespace vanzer
