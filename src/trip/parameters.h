// The planning parameters of a trip: the clock times by their pairs of lists, and their bounds.
#pragma once

#include <array>
#include <cstddef>

#include "trip/trip_numbers.h"

namespace vanzer {

/// The pairs of clock lists, by their index.
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

/// The pairs and the speeds as the records of destinations and defaults name them, in the order of their fields; the
/// pairs of the visits and ferries come last.
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

/// The variable of a pair, hundredths.
[[nodiscard]] float& variabileCoppia(NumeriViaggio& trip, int pair);

/// Brings clock times and lengths of meals inside their bounds and into the order of a day.
void limitClocks(NumeriViaggio& trip);

} // namespace vanzer
