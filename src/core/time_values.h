// The two units in which the system thinks about time, and their texts.
//
// A clock time or a duration is a single-precision count of hundredths of an hour: 8:30 is 850. A duration longer than
// a day is written gg:hh:mm, and how long one gg is (the day unit, in hundredths) is an argument of each conversion:
// 2400 for clock times and stops, the driving hours of a day for driving times, the visiting hours for visits.
// A date is eight digits, ggmmaaaa; day arithmetic goes through a Julian day of its own (1 January 2001: 730501).
#pragma once

#include <QString>

namespace vanzer {

/// The day unit of clock times and stops: 24 hours, in hundredths.
inline constexpr float giornoIntero = 2400;

/// gg:hh:mm, hh:mm or less to hundredths; what is no digit reads as 0.
[[nodiscard]] float ghmStringa2Centesimi(const QString& text, float dayUnit);

/// Hundredths to gg:hh:mm; a zero duration is the empty text. Minutes aren't carried: 99.5 hundredths end in ":60".
/// A day unit of 0 gives no days.
[[nodiscard]] QString ghmCentesimi2Stringa(float centesimi, float dayUnit);

/// A duration taken apart by a day unit, minutes rounded; and what it is worth again in another one. Days beyond 99
/// lose their leading digits, as in the text.
struct Ghm {
    double gg = 0;
    double hh = 0;
    double mm = 0;
};
[[nodiscard]] Ghm splitTime(float centesimi, float dayUnit);
[[nodiscard]] float recompose(const Ghm& ghm, float dayUnit);

/// The characters of the above from position 4 on: hh:mm, without the days.
[[nodiscard]] QString ghmSenzaGiorni(float centesimi, float dayUnit);

struct Gma {
    int giorno = 0;
    int mese = 0;
    int anno = 0;
};

[[nodiscard]] Gma Data2Gma(const QString& data);
[[nodiscard]] QString Gma2Data(const Gma& gma);

/// Julian day of a date. Every fourth year counts as a leap year.
[[nodiscard]] float Data2Giul(const QString& data);
[[nodiscard]] Gma Giul2Data(float giuliano);
[[nodiscard]] QString Giu2Datas(float giuliano);

/// gg/mm/aaaa.
[[nodiscard]] QString Data2Data(const QString& data);
/// aaaammgg.
[[nodiscard]] QString DataChan(const QString& data);

/// "Lun" to "Dom"; nothing for a text that isn't eight characters long.
[[nodiscard]] QString GiornoSettimana(const QString& data);

/// Days of the month, with the century rule; month 0 is the December before January.
[[nodiscard]] int GiorniMese(int anno, int mese);

} // namespace vanzer
