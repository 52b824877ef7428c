// SPDX-License-Identifier: MIT
#include "trip/parameters.h"

#include "core/time_values.h"

namespace vanzer {

float& variabileCoppia(NumeriViaggio& trip, int pair) {
    const std::array<float*, numeroCoppie> variables{&trip.OraColazione, &trip.OraPranzo,    &trip.OraCena,
                                                     &trip.OraNotte,     &trip.DurataPranzo, &trip.DurataCena,
                                                     &trip.InizioVisita, &trip.FineVisita,   &trip.OreTraghetti};
    return *variables[static_cast<std::size_t>(pair)];
}

void limitClocks(NumeriViaggio& trip) {
    if (trip.DurataPranzo > 350)
        trip.DurataPranzo = 200;
    if (trip.DurataCena > 250)
        trip.DurataCena = 150;
    if (trip.OraColazione > 1200)
        trip.OraColazione = 900;
    if (trip.OraPranzo < 1000)
        trip.OraPranzo = 1000;
    if (trip.OraPranzo > 1600)
        trip.OraPranzo = 1600;
    if (trip.OraCena < 1700 || trip.OraCena > 2200)
        trip.OraCena = 2000;
    if (trip.OraNotte < 1900)
        trip.OraNotte = 1900;
    if (trip.OraNotte > giornoIntero)
        trip.OraNotte = giornoIntero;
    if (trip.OraPranzo <= trip.OraColazione)
        trip.OraPranzo = trip.OraColazione + 100;
    if (trip.OraPranzo + trip.DurataPranzo >= trip.OraCena)
        trip.OraCena = trip.OraPranzo + trip.DurataPranzo + 100;
    if (trip.OraCena + trip.DurataCena >= trip.OraNotte)
        trip.OraNotte = trip.OraCena + trip.DurataCena;
    if (trip.OreTraghetti == 0)
        trip.OreTraghetti = 100;
    if (trip.InizioVisita < trip.OraColazione)
        trip.InizioVisita = trip.OraColazione;
    if (trip.FineVisita > trip.OraNotte)
        trip.FineVisita = trip.OraNotte;
}

} // namespace vanzer
