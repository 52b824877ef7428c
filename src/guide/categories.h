// SPDX-License-Identifier: MIT
// The categories of the guide in a new archive.
#pragma once

#include <array>
#include <cstddef>

namespace vanzer {

/// The names in the order of their codes, which count from 1.
inline constexpr std::array<const char16_t*, 10> primeCategorie{
    u"Ottimo",  u"Da vedere", u"Interessante", u"Vedibile", u"Punto Sosta",
    u"PS e CS", u"Campeggio", u"Ristorante",   u"Gpl",      u"Diari di bordo"};

/// The first categories are sights. A visit there takes time, so their entries need one.
inline constexpr std::size_t categorieDaVisitare = 4;

} // namespace vanzer
