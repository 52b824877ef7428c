// The categories of the guide with which an archive begins.
#pragma once

#include <array>
#include <cstddef>

namespace vanzer {

/// In the order of their codes, from 1.
inline constexpr std::array<const char16_t*, 10> primeCategorie{
    u"Ottimo",  u"Da vedere", u"Interessante", u"Vedibile", u"Punto Sosta",
    u"PS e CS", u"Campeggio", u"Ristorante",   u"Gpl",      u"Diari di bordo"};

/// The first of them are for sights, whose visit takes time.
inline constexpr std::size_t categorieDaVisitare = 4;

} // namespace vanzer
