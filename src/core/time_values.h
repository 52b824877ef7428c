// SPDX-License-Identifier: MIT
// Times, durations and dates, and their texts.
//
// A clock time or a duration is a float in hundredths of an hour: 8:30 is 850. A duration longer than a day is written
// gg:hh:mm. Each conversion takes the length of one gg, the day unit, in hundredths of an hour: 2400 for clock times
// and stops, the driving hours of a day for driving times, the visiting hours for visits. A date is eight digits,
// ggmmaaaa. Day arithmetic uses a day number that this code calls Julian day (1 January 2001 is 730501).
#pragma once

#include <QString>

namespace vanzer {

/// The day unit of clock times and stops: 24 hours, in hundredths of an hour.
inline constexpr float giornoIntero = 2400;

/// Converts gg:hh:mm, hh:mm or less to hundredths of an hour. Characters that aren't digits count as 0.
[[nodiscard]] float ghmStringa2Centesimi(const QString& text, float dayUnit);

/// Converts hundredths of an hour to gg:hh:mm. A duration of 0 becomes an empty text. Minutes aren't carried: 99.5
/// hundredths end in ":60". With a day unit of 0 there are no days.
[[nodiscard]] QString ghmCentesimi2Stringa(float centesimi, float dayUnit);

/// A duration as days, hours and minutes (rounded). splitTime() splits hundredths of an hour by a day unit; recompose()
/// returns hundredths of an hour, possibly with another day unit. Of days beyond 99 it counts the last two digits only.
struct Ghm {
    double gg = 0;
    double hh = 0;
    double mm = 0;
};
[[nodiscard]] Ghm splitTime(float centesimi, float dayUnit);
[[nodiscard]] float recompose(const Ghm& ghm, float dayUnit);

/// ghmCentesimi2Stringa() without the days: hh:mm.
[[nodiscard]] QString ghmSenzaGiorni(float centesimi, float dayUnit);

struct Gma {
    int giorno = 0;
    int mese = 0;
    int anno = 0;
};

[[nodiscard]] Gma Data2Gma(const QString& data);
[[nodiscard]] QString Gma2Data(const Gma& gma);

/// Julian day of a date ggmmaaaa. Every fourth year counts as a leap year.
[[nodiscard]] float Data2Giul(const QString& data);
[[nodiscard]] Gma Giul2Data(float giuliano);
[[nodiscard]] QString Giu2Datas(float giuliano);

/// ggmmaaaa to gg/mm/aaaa.
[[nodiscard]] QString Data2Data(const QString& data);
/// ggmmaaaa to aaaammgg.
[[nodiscard]] QString DataChan(const QString& data);

/// Weekday of a date ggmmaaaa, "Lun" to "Dom". Empty if the text isn't eight characters long.
[[nodiscard]] QString GiornoSettimana(const QString& data);

/// Number of days of a month, with the Gregorian leap years. Month 0 is December.
[[nodiscard]] int GiorniMese(int anno, int mese);

} // namespace vanzer
