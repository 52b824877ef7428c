// SPDX-License-Identifier: MIT
// The simulation of the days: the data of its rows, and its early ends. Other behaviour is tested by scenarios.
#include <gtest/gtest.h>

#include "support/plain_day.h"

namespace vanzer {

TEST(Simulazione, EndsWhenTheWantedDaysArePassedOrItIsStopped) {
    ParametriSimulazione p = plainDay();
    p.giorniDesiderati = 2;
    const RigaDiLavoro leg = drive(QStringLiteral("X"), 10);
    const Viandoria v = simulate({leg, guideStop(3000), leg}, p, 1);
    EXPECT_EQ(v.esito, Viandoria::Esito::TroppiGiorni);
    EXPECT_EQ(v.giorni, 4);
    EXPECT_EQ(v.righe.size(), 2U);
    std::vector<std::size_t> soFar;
    const Viandoria stopped = simulate({leg, leg, leg}, p, 1, [&soFar](int row, const Viandoria& written) {
        soFar.push_back(written.righe.size());
        return row == 2;
    });
    EXPECT_EQ(stopped.esito, Viandoria::Esito::Interrotta);
    EXPECT_EQ(soFar, (std::vector<std::size_t>{0, 1}));
    p.giorniDesiderati = 0;
    p.oreVisitaGiorno = 0;
    p.fineVisita = p.inizioVisita;
    const RigaViandoria stop = simulate({drive(QStringLiteral("X"), 0), guideStop(500)}, p, 1).righe.back();
    EXPECT_EQ(std::pair(stop.giuliano, stop.ora), std::pair(p.giulianoInizio, 1400.F)) << "visits without a length end";
    EXPECT_EQ(simulate({drive(QStringLiteral("X"), 999)}, p, 1).righe[0].fine, RigaViandoria::Fine::Pranzo);
}

} // namespace vanzer
