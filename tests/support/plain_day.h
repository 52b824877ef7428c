// SPDX-License-Identifier: MIT
// A day of a trip, with drives and visits.
#pragma once

#include "schedule/simulation.h"

namespace vanzer {

/// Starts on 5 July 2003, a Saturday. At 100 km/h, a kilometre takes one hundredth of an hour.
inline ParametriSimulazione plainDay() {
    ParametriSimulazione p;
    p.oraColazione = 900;
    p.oraPranzo = 1250;
    p.durataPranzo = 250;
    p.oraCena = 2000;
    p.durataCena = 175;
    p.oraNotte = 2250;
    p.inizioVisita = 900;
    p.fineVisita = 1900;
    p.oreVisitaGiorno = 1000;
    p.oreGuidaGiorno = 925;
    p.oraInizioViaggio = 900;
    p.giulianoInizio = 731416;
    p.range = 25;
    p.medie = {100, 100, 100, 100};
    return p;
}

inline RigaDiLavoro drive(const QString& place, int km, bool endOfDay = false) {
    RigaDiLavoro row;
    row.nome = place;
    row.km = km;
    row.fineGiorno = endOfDay;
    row.tappa = 1;
    return row;
}

/// `length` in hundredths of an hour.
inline RigaDiLavoro guideStop(float length) {
    RigaDiLavoro row;
    row.tipo = RigaDiLavoro::Tipo::SostaGuida;
    row.sostaGuida = length;
    return row;
}

} // namespace vanzer
