// The walk through the days: milestones, breaks, rests, stops.
#include <gtest/gtest.h>

#include "core/text.h"
#include "support/plain_day.h"

namespace vanzer {

namespace {

using namespace Qt::StringLiterals;
using Fine = RigaViandoria::Fine;

RigaDiLavoro leg(int km, bool endOfDay = false) {
    return drive(u"X"_s, km, endOfDay);
}

RigaDiLavoro itineraryStop(float length) {
    RigaDiLavoro row;
    row.tipo = RigaDiLavoro::Tipo::SostaItinerario;
    row.sostaFissa = length;
    return row;
}

/// What a row says, in one line: kind, kilometres, day from 0, clock, what follows.
std::string told(const RigaViandoria& row, float start) {
    static constexpr std::array kinds{"tratto", "sosta", "menzione", "mattino"};
    std::string text = kinds[static_cast<std::size_t>(row.tipo)];
    const auto add = [&text](const char* before, int number) { (text += before) += std::to_string(number); };
    if (row.tipo == RigaViandoria::Tipo::Tratto) {
        add(" ", row.km);
        text += row.verso ? " verso" : "";
    }
    add(" g", static_cast<int>(row.giuliano - start));
    add(" ", static_cast<int>(row.ora));
    for (const auto& [on, name] :
         {std::pair{row.pranzo, " pranzo"}, std::pair{row.cena, " cena"}, std::pair{row.notte, " notte"},
          std::pair{row.pausa, " pausa"}, std::pair{row.riposoDopo, " riposo"}, std::pair{row.domani, " domani"},
          std::pair{row.spezzata, " spezzata"}}) {
        if (on)
            text += name;
    }
    return text;
}

using RowTexts = std::vector<std::string>;

RowTexts told(const Viandoria& trip) {
    RowTexts rows;
    for (const RigaViandoria& row : trip.righe)
        rows.push_back(told(row, plainDay().giulianoInizio));
    return rows;
}

RowTexts walk(const std::vector<RigaDiLavoro>& rows, const ParametriSimulazione& p, float k = 1) {
    return told(simulate(rows, p, k));
}

} // namespace

TEST(Simulazione, DepartureWithinAMealOrBehindTheNight) {
    const struct {
        float start;
        std::string first;
    } cases[] = {
        {1250, "tratto 10 g0 1511"}, {1500, "tratto 10 g0 1511"}, {2100, "tratto 10 g0 2186"},
        {2250, "tratto 10 g0 910"},  {2400, "tratto 10 g0 910"},  {1249, "tratto 10 g0 1259 pranzo"},
    };
    for (const auto& c : cases) {
        ParametriSimulazione p = plainDay();
        p.oraInizioViaggio = c.start;
        EXPECT_EQ(walk({leg(10)}, p).front(), c.first) << c.start;
    }
}

TEST(Simulazione, BandOfLunch) {
    // Lunch at 1250, range 25: an arrival from 1242 to 1274 is driven whole and eats; from 1275 on the piece is cut.
    const struct {
        int km;
        RowTexts rows;
    } cases[] = {
        {341, {"tratto 341 g0 1241", "tratto 9 verso g0 1250 pranzo", "tratto 91 g0 1591"}},
        {342, {"tratto 342 g0 1242 pranzo", "tratto 100 g0 1592"}},
        {374, {"tratto 374 g0 1274 pranzo", "tratto 100 g0 1624"}},
        {375, {"tratto 350 verso g0 1250 pranzo", "tratto 25 g0 1525", "tratto 100 g0 1625"}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(walk({leg(c.km), leg(100)}, plainDay()), c.rows) << c.km;
}

TEST(Simulazione, AnArrivalPastTheNightOutsideTheBandBeginsTheNextDay) {
    ParametriSimulazione p = plainDay();
    p.medie = {1, 1, 1, 1}; // a kilometre takes an hour, so that pieces jump over the bands
    p.oraInizioViaggio = 2190;
    EXPECT_EQ(walk({leg(1), leg(1)}, p), (RowTexts{"tratto 1 g0 2290", "tratto 1 g1 1000"}));
}

TEST(Simulazione, Breaks) {
    ParametriSimulazione p = plainDay();
    p.riposoOre = 1;
    p.riposoMinuti = 25;
    p.oraPranzo = 1500;
    const Viandoria v = simulate({leg(250)}, p, 1);
    EXPECT_EQ(told(v), (RowTexts{"tratto 100 verso g0 1000 pausa", "tratto 100 verso g0 1125 pausa",
                                 "tratto 50 g0 1200 pausa"}));
    EXPECT_EQ(v.righe[0].fine, Fine::Pausa);
    // At a crawl the piece before a break still moves on.
    p.medie = {0.5, 0.5, 0.5, 0.5};
    EXPECT_EQ(simulate({leg(2)}, p, 1).righe.size(), 2U);
}

TEST(Simulazione, Stops) {
    ParametriSimulazione p = plainDay();
    p.range = 25; // a stop may run 8.33 hundredths past the end of visits
    const struct {
        const char* what;
        float start;
        std::vector<RigaDiLavoro> stops;
        float k;
        std::string last;
    } cases[] = {
        {"within the day", 900, {itineraryStop(200)}, 1, "sosta g0 1100"},
        {"waits for the morning", 1950, {itineraryStop(100)}, 1, "sosta g1 1000 domani"},
        {"split over two days", 1700, {itineraryStop(500)}, 1, "sosta g1 1200 spezzata"},
        {"three whole days at the same hour", 1000, {itineraryStop(3000)}, 1, "sosta g3 1000 spezzata"},
        {"a little past the end", 1700, {itineraryStop(208)}, 1, "sosta g0 1908"},
        {"too far past the end", 1700, {itineraryStop(209)}, 1, "sosta g1 909 spezzata"},
        {"stretched", 900, {guideStop(75)}, 0.5f, "sosta g0 938"},
        {"an itinerary stop isn't stretched", 900, {itineraryStop(75)}, 0.5f, "sosta g0 975"},
    };
    for (const auto& c : cases) {
        p.oraInizioViaggio = c.start;
        std::vector<RigaDiLavoro> rows{leg(0)};
        rows.insert(rows.end(), c.stops.begin(), c.stops.end());
        EXPECT_EQ(walk(rows, p, c.k).back(), c.last) << c.what;
    }
    p.oraInizioViaggio = 900;
    EXPECT_EQ(walk({leg(0), guideStop(75)}, p, 0).size(), 1U) << "no time, no row";
    EXPECT_EQ(simulate({leg(0), itineraryStop(38)}, p, 1).righe.back().sosta, 38) << "38 hundredths are 23 minutes";
}

TEST(Simulazione, AVisitingDayWithoutLengthStillEnds) {
    ParametriSimulazione p = plainDay();
    p.oreVisitaGiorno = 0;
    p.fineVisita = 900;
    EXPECT_EQ(walk({leg(0), itineraryStop(500)}, p).back(), "sosta g0 1400");
}

TEST(Simulazione, EndsWhenTheWantedDaysArePassed) {
    ParametriSimulazione p = plainDay();
    p.giorniDesiderati = 2;
    const Viandoria v = simulate({leg(0), itineraryStop(3000), leg(10)}, p, 1);
    EXPECT_EQ(v.esito, Viandoria::Esito::TroppiGiorni);
    EXPECT_EQ(v.giorni, 4);
    EXPECT_EQ(v.righe.size(), 2U);
    std::vector<std::size_t> soFar;
    const Viandoria stopped = simulate({leg(0), leg(10), leg(10)}, p, 1, [&soFar](int row, const Viandoria& written) {
        soFar.push_back(written.righe.size());
        return row == 2;
    });
    EXPECT_EQ(stopped.esito, Viandoria::Esito::Interrotta);
    EXPECT_EQ(stopped.righe.size(), 1U);
    EXPECT_EQ(soFar, (std::vector<std::size_t>{0, 1}));
}

TEST(Simulazione, WithoutASpeedTheCalculationStillEnds) {
    ParametriSimulazione p = plainDay();
    p.medie = {0, 100, 100, 100};
    RigaDiLavoro other = leg(30);
    other.strada = 1;
    EXPECT_EQ(walk({leg(20), other, leg(20)}, p),
              (RowTexts{"tratto 20 g0 900", "tratto 30 g0 930", "tratto 20 g0 960"}))
        << "the time of the piece stays the last one";
}

} // namespace vanzer
