// Totals, preparation, fitting and the texts of the schedule.
#include <algorithm>
#include <iterator>

#include <gtest/gtest.h>

#include "core/text.h"
#include "schedule/fitting.h"
#include "schedule/preparation.h"
#include "schedule/rows.h"
#include "schedule/totals.h"

namespace vanzer {

namespace {

using namespace Qt::StringLiterals;
using Tipo = RigaDiLavoro::Tipo;

VoceGuida entry(const QString& description, const QString& time, const QString& group = u" "_s) {
    return {.rowid = 0, .tempoSosta = time, .codice = 1, .gruppo = group, .descrizione = description};
}

/// The working rows told one by one: kind, name, stop, "*" for an end of the day.
std::vector<std::string> prepared(const std::vector<TappaDaPreparare>& legs, FonteSoste source,
                                  const std::map<QString, std::vector<VoceGuida>>& guide) {
    Preparazione with;
    with.fonte = source;
    with.oreVisitaGiorno = 1000;
    with.guida = [&guide](const QString& place) {
        std::vector<const VoceGuida*> entries;
        if (const auto found = guide.find(place); found != guide.end())
            std::ranges::transform(found->second, std::back_inserter(entries), [](const VoceGuida& e) { return &e; });
        return entries;
    };
    with.categoria = [](int) { return u"Ottimo"_s; };
    std::vector<std::string> rows;
    for (const RigaDiLavoro& row : preparaRighe(legs, with).righe) {
        std::string& text = rows.emplace_back(nomeMostrato(row).toStdString());
        if (row.tipo == Tipo::SostaGuida || row.tipo == Tipo::SostaItinerario)
            (text += '=') += testoNumero(row.tipo == Tipo::SostaGuida ? row.sostaGuida : row.sostaFissa).toStdString();
        if (row.fineGiorno)
            text += '*';
    }
    return rows;
}

TappaDaPreparare leg(int row, const QString& place, const QString& stop = {}) {
    return {.riga = row, .luogo = place, .strada = {}, .km = 10, .tipoStrada = u"A"_s, .sosta = stop};
}

using RowTexts = std::vector<std::string>;

} // namespace

TEST(Totali, ByRoadTypeAndRunning) {
    TotaliTabella table;
    table.ricalcola({{}, Tratto{0, 3, false}, Tratto{100, 0, false}, Tratto{50, 3, true}, Tratto{0, 2, true}},
                    {80, 65, 50, 30});
    const TotaliItinerario& t = table.totali();
    EXPECT_EQ(t.km, (std::array<float, 5>{100, 0, 0, 50, 150}));
    EXPECT_EQ(t.tempo, (std::array<float, 5>{125, 0, 0, 167, 292}));
    EXPECT_EQ(t.traghetti, 2);
    EXPECT_EQ(table.kmProgressivi(3), 150);
    EXPECT_EQ(table.tempo(3), 167);
    table.ricalcola({Tratto{100, 0, false}}, {0, 0, 0, 0});
    EXPECT_EQ(t.tempo[4], 0) << "no speed, no time";
    const struct {
        const char16_t* letter;
        int index;
    } letters[] = {{u"", 0}, {u"A", 0}, {u"s", 1}, {u"P", 2}, {u"L", 3}, {u" ", 3}, {u"Z", 3}};
    for (const auto& c : letters)
        EXPECT_EQ(indiceStrada(c.letter), c.index);
}

TEST(Totali, LeastDaysAndTheirList) {
    const struct {
        const char16_t* time;
        int days;
    } cases[] = {{u"03:00:00", 3}, {u"03:00:01", 4}, {u"00:08:00", 1}, {u"", 0}};
    for (const auto& c : cases)
        EXPECT_EQ(giorniMinimi(QString::fromUtf16(c.time)), c.days);
    const QStringList days = giorniOfferti(4, true);
    EXPECT_EQ(days.size(), 1 + 31 + 18);
    EXPECT_EQ(days[1], u"004");
    EXPECT_EQ(days[31], u"034");
    EXPECT_EQ(days[32], u"030");
    EXPECT_EQ(days.last(), u"200");
    EXPECT_EQ(giorniOfferti(0, false), QStringList{u"000"_s});
}

TEST(Preparazione, SourcesOfTheStops) {
    const std::map<QString, std::vector<VoceGuida>> guide{
        {u"Roma"_s,
         {entry(u"Foro"_s, u"02:00"_s, u"A"_s), entry(u"Colosseo"_s, u"01:00"_s, u"0"_s),
          entry(u"Area"_s, u"00:00"_s, u"B"_s)}}};
    const std::vector<TappaDaPreparare> legs{leg(1, u"Roma (centro)"_s, u"*00:02:00"_s)};
    const std::string name = "Roma (centro) [Start]";
    const std::string stop = " > a Roma (centro) [Start]=200";
    const struct {
        FonteSoste source;
        RowTexts rows;
    } cases[] = {
        {FonteSoste::Itinerario, {name, stop + "*"}},
        {FonteSoste::Guida, {name, " > A * Foro=200", " > Colosseo=100", " > Area*"}},
        {FonteSoste::Entrambe, {name, stop, " > A * Foro=200", " > Colosseo=100", " > Area*"}},
        {FonteSoste::Maggiore,
         {name, " > a Roma (centro) [Start]=1", " > A * Foro=200", " > Colosseo=100", " > Area*"}},
        {FonteSoste::Minore, {name, stop, " > A * Foro=1", " > Colosseo=1", " > Area*"}},
        {FonteSoste::NessunaSosta, {name + "*"}},
        {FonteSoste::Nessuna, {name + "*"}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(prepared(legs, c.source, guide), c.rows) << static_cast<int>(c.source);
}

TEST(Preparazione, EqualSumsAndWholeDays) {
    const std::map<QString, std::vector<VoceGuida>> guide{{u"Roma"_s, {entry(u"Foro"_s, u"G2:30"_s)}}};
    const std::vector<TappaDaPreparare> legs{leg(1, u"Roma"_s, u"02:00:30"_s)};
    EXPECT_EQ(prepared(legs, FonteSoste::Maggiore, guide)[1], " > a Roma [Start]=1") << "4 keeps the guide";
    EXPECT_EQ(prepared(legs, FonteSoste::Maggiore, guide)[2], " > Foro=2050");
    EXPECT_EQ(prepared(legs, FonteSoste::Minore, guide)[1], " > a Roma [Start]=2050") << "5 keeps the itinerary";
    EXPECT_EQ(prepared(legs, FonteSoste::Minore, guide)[2], " > Foro=1");
}

TEST(Preparazione, StretchOfTheGuide) {
    const std::map<QString, std::vector<VoceGuida>> guide{{u"A"_s, {entry(u"a"_s, u"01:00"_s)}},
                                                          {u"B"_s, {entry(u"b"_s, u"01:00"_s)}},
                                                          {u"C"_s, {entry(u"c"_s, u"01:00"_s)}}};
    EXPECT_EQ(prepared({leg(1, u"A"_s), leg(2, {}), leg(3, u"B [Start]"_s), leg(4, u"C [End]"_s), leg(5, u"A"_s)},
                       FonteSoste::Guida, guide),
              (RowTexts{"A", "B [Start]", " > b=100", "C [End]", " > c=100", "A"}));
    EXPECT_EQ(prepared({leg(1, u"A [End]"_s), leg(2, u"B [Start]"_s), leg(3, u"C"_s)}, FonteSoste::Guida, guide),
              (RowTexts{"A", "B [Start]", " > b=100", "C", " > c=100"}))
        << "an end before the start goes";
    EXPECT_TRUE(prepared({leg(1, {})}, FonteSoste::Guida, guide).empty());
}

TEST(Adeguamento, AStoredValueThatFitsTakesOneTest) {
    Adeguamento search({0.75, 3, 925, 500});
    search.iniziaSerie(925);
    EXPECT_EQ(search.prossimo(0, 5, true), Adeguamento::Passo::Prova);
    EXPECT_EQ(search.coefficiente(), 0.75f);
    EXPECT_EQ(search.esito(5, 5), Adeguamento::Fine::Raggiunto);
    EXPECT_EQ(search.esito(0, 0), Adeguamento::Fine::SenzaAdeguamento);
}

TEST(Adeguamento, WithoutDaysOrStopsTheMultiplierIsOne) {
    for (const bool stops : {true, false}) {
        Adeguamento search({0.75, 1, 925, 0});
        search.iniziaSerie(925);
        EXPECT_EQ(search.prossimo(0, stops ? 0 : 5, stops), Adeguamento::Passo::Prova);
        EXPECT_EQ(search.coefficiente(), 1);
    }
}

TEST(Adeguamento, SearchesByHalvingSteps) {
    const struct {
        const char* what;
        int days; // of every test, against 5 wanted
        std::vector<float> values;
    } cases[] = {
        {"always too long", 6, {0.5f, 1, 0.5f, 0.25f, 0.125f}},
        {"always too short", 4, {0.5f, 1, 1.5f, 1.75f, 1.875f}},
    };
    for (const auto& c : cases) {
        Adeguamento search({0.5, 5, 925, 0});
        search.iniziaSerie(925);
        std::vector<float> values;
        int series = 1;
        while (values.size() < c.values.size()) {
            if (search.prossimo(c.days, 5, true) == Adeguamento::Passo::NuovaSerie) {
                search.iniziaSerie(925);
                ++series;
                continue;
            }
            values.push_back(search.coefficiente());
        }
        EXPECT_EQ(values, c.values) << c.what;
        EXPECT_EQ(series, 2) << c.what;
    }
}

TEST(Adeguamento, EndsAfterTwentyOneTestsFromTheFreshStart) {
    // The fresh start tries the ratio once, goes on at 1, and must not come back to the ratio.
    Adeguamento search({0, 1, 925, 500});
    search.iniziaSerie(1000);
    EXPECT_EQ(search.prossimo(0, 5, true), Adeguamento::Passo::Prova);
    EXPECT_EQ(search.prossimo(2, 5, true), Adeguamento::Passo::NuovaSerie);
    search.iniziaSerie(1000);
    std::vector<float> values;
    do {
        ASSERT_EQ(search.prossimo(2, 5, true), Adeguamento::Passo::Prova);
        values.push_back(search.coefficiente());
    } while (search.esito(2, 5) == Adeguamento::Fine::InCorso);
    EXPECT_EQ(values.size(), 21U);
    EXPECT_NEAR(values[0], 5.0 * 1000 / 1500, 1e-6);
    EXPECT_EQ(values[1], 1);
    EXPECT_EQ(values[2], 1.5f);
    EXPECT_LT(values.back(), 2.001f);
    EXPECT_EQ(search.esito(2, 5), Adeguamento::Fine::Impossibile);
}

TEST(Adeguamento, StartOfAFreshSearch) {
    EXPECT_EQ(coefficienteDiPartenza({0, 2, 1000, 0}, 2), 1) << "one day of stops at most is there";
    EXPECT_EQ(coefficienteDiPartenza({0, 1, 1000, 4000}, 3), 1) << "the ratio is below 1";
    EXPECT_EQ(coefficienteDiPartenza({0, 2, 1000, 2000}, 8), 2);
    EXPECT_EQ(giorniDiGuida(0, 925), 1);
    EXPECT_EQ(giorniDiGuida(926, 925), 1) << "a hundredth of a day is forgiven";
    EXPECT_EQ(giorniDiGuida(940, 925), 2);
}

TEST(RigheViandoria, TextsNotesAndTotals) {
    std::vector<RigaDiLavoro> work(3);
    work[0].nome = u"ROMA [Start]"_s;
    work[0].quadra = true;
    work[1].tipo = Tipo::SostaGuida;
    const VoceGuida forum = entry(u"Foro"_s, {}, u" A "_s);
    work[1].voce = &forum;
    work[1].nota = u"Ottimo"_s;
    work[2].nome = u"OSTIA (mare)"_s;
    Viandoria v;
    const auto add = [&v](RigaViandoria::Tipo type, int source, float day, float hour) -> RigaViandoria& {
        RigaViandoria row;
        row.tipo = type;
        row.lavoro = source;
        row.giuliano = day;
        row.ora = hour;
        v.righe.push_back(row);
        return v.righe.back();
    };
    RigaViandoria& piece = add(RigaViandoria::Tipo::Tratto, 0, 731416, 1250);
    piece.km = piece.kmTotali = 1300;
    piece.tempo = 350;
    piece.verso = piece.pranzo = piece.pausa = true;
    RigaViandoria& stop = add(RigaViandoria::Tipo::Sosta, 1, 731416, 1600);
    stop.sosta = 150;
    stop.sostaGuida = 1150;
    stop.riposoDopo = true;
    add(RigaViandoria::Tipo::NuovoGiorno, 1, 731417, 900);
    RigaViandoria& last = add(RigaViandoria::Tipo::Tratto, 2, 731418, 1000);
    last.km = 20;
    last.kmTotali = 1320;
    last.tempo = 100;
    v.giuliano = 731418;
    v.ora = 1000;
    const std::vector<QString> leg{QString(), QString(), u" A1 "_s, QString(), u"A"_s};
    const TestiViandoria texts{
        [&leg](int, int column) -> const QString& { return leg[static_cast<std::size_t>(column)]; }, u"15"_s, 925,
        1000};

    TabellaViandoria table(v, work, texts);
    TestiTabella rows;
    rows.setRows(table.righe());
    for (int row = 0; row < table.righe(); ++row)
        table.scrive(row, RigaDiTesti(rows, row));
    const auto line = [&rows](int row) {
        QStringList cells;
        for (int column = 0; column < numeroColonneViandoria; ++column)
            cells << rows.text(row, column);
        return cells.join(u'|');
    };
    EXPECT_EQ(line(0), u"1|verso: Roma|A1|1300|A|1.300|03:30|||Sab|05/07|12:30|Riposo 15'Pranzo|");
    EXPECT_EQ(line(1), u"|> A * Foro||||||01:01:30|01:30|Sab|05/07|* 16:00|"
                       u"Ottimo [Km 1300 in ore 03:30; soste per ore 01:30]|");
    EXPECT_EQ(line(2), u"| > Partenza mattino successivo||||||||Dom|06/07|09:00|Nuovo giorno|>07/07-10:00")
        << "a day with nothing in it has no note";
    EXPECT_EQ(line(3), u"4|OSTIA (mare)|A1|20|A|1.320|01:00|||Lun|07/07|10:00|[Km 20 in ore 01:00]|");
    EXPECT_EQ(rows.text(10, colTappa), u"\t\tKm. 1.320  \tGuida 00:04:30 (00:04:30)  \t Sosta 00:01:30 (00:01:30)");
    EXPECT_EQ(rows.text(8, colTappa), u"\t\tKm. 0  \tGuida  ()\t");
}

} // namespace vanzer
