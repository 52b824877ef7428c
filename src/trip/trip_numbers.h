// SPDX-License-Identifier: MIT
// The numbers of the trip, for everything that calculates. They are copies: the window's controls hold the truth, and
// every check of the parameters copies them anew. Clock times and durations are hundredths of an hour.
#pragma once

namespace vanzer {

struct NumeriViaggio {
    float OraColazione = 0; ///< activity starts
    float OraPranzo = 0;
    float OraCena = 0;
    float OraNotte = 0; ///< the day ends
    float DurataPranzo = 0;
    float DurataCena = 0;
    float InizioVisita = 0; ///< earliest start of a visit
    float FineVisita = 0;   ///< latest end of a visit
    float OreTraghetti = 0; ///< time for one ferry

    float OreGuidaGiorno = 0;  ///< driving time of a planned day: the day unit of driving times
    float OreVisitaGiorno = 0; ///< visiting time of a day

    int RiposoMinuti = 0;     ///< length of a break, hundredths of an hour in spite of the name
    int RiposoOre = 0;        ///< whole hours of travel after which a break falls due
    int RiposoGiorno = 0;     ///< days of a long rest
    int RiposoDopoGiorni = 0; ///< days of travel after which a long rest falls due

    int GiornoInizio = 0;
    int MeseInizio = 0;
    int AnnoInizio = 0;
    float GiulianoInizio = 0;   ///< Julian day
    float GiulianoCorrente = 0; ///< Julian day of the present moment
    float OraInizioViaggio = 0;
    float OraCorrente = 0;

    int GiorniDesiderati = 0; ///< wanted days; 0: no fitting
    int NumeroTraghetti = 0;

    float Coefficiente = 0; ///< factor of the guide's stops
    int NumeroTest = 0;     ///< of the calculation, from 1
    int GiorniCalcolati = 0;
};

} // namespace vanzer
