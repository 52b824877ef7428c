// SPDX-License-Identifier: MIT
// The planning parameters of a trip: clock times, their pairs of lists, and their bounds.
#pragma once

#include <array>
#include <cstddef>

#include "trip/trip_numbers.h"

namespace vanzer {

/// The pairs of lists (hours, minutes) by their index.
enum Coppia {
    coppiaColazione,
    coppiaPranzo,
    coppiaCena,
    coppiaNotte,
    coppiaDurataPranzo,
    coppiaDurataCena,
    coppiaInizioVisita,
    coppiaFineVisita,
    coppiaTraghetti,
    numeroCoppie
};

/// The field that holds each pair, and below each speed, in the records of destinations and defaults. The order is that
/// of the fields; visits and ferries come last.
struct CampoCoppia {
    Coppia pair;
    const char16_t* field;
};
inline constexpr std::array<CampoCoppia, numeroCoppie> campiCoppie{{{coppiaColazione, u"OraColazione"},
                                                                    {coppiaPranzo, u"OraPranzo"},
                                                                    {coppiaDurataPranzo, u"DurataPranzo"},
                                                                    {coppiaCena, u"OraCena"},
                                                                    {coppiaDurataCena, u"DurataCena"},
                                                                    {coppiaNotte, u"OraNotte"},
                                                                    {coppiaInizioVisita, u"InizioVisita"},
                                                                    {coppiaFineVisita, u"FineVisita"},
                                                                    {coppiaTraghetti, u"OreTraghetti"}}};
inline constexpr std::size_t numeroPasti = 6;
inline constexpr std::array<const char16_t*, 4> campiMedie{u"MediaAutostrada", u"MediaSuperStrada", u"MediaPrincipale",
                                                           u"MediaLocale"};

/// The variable of a pair, hundredths of an hour.
[[nodiscard]] float& variabileCoppia(NumeriViaggio& trip, int pair);

/// Limits clock times and lengths of meals to their bounds, in the order of a day.
void limitClocks(NumeriViaggio& trip);

} // namespace vanzer
