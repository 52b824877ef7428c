// How the rows of the table are told apart.
#include <gtest/gtest.h>

#include "guide/entries.h"
#include "schedule/row_look.h"
#include "schedule/rows.h"

namespace vanzer {

namespace {

/// Texts of a row by column; every other cell is empty.
using Row = std::map<int, QString>;
using Looks = std::vector<std::string>;

/// "V" for a row of a schedule, the kind's name, the day or the category, "|" at its end.
std::string told(const AspettoRiga& look) {
    constexpr std::array<const char*, 8> kinds{"vuota",  "tappa",  "sosta", "mattino",
                                               "titolo", "totale", "luogo", "voce"};
    return std::string(look.viandoria ? "V " : "") + kinds[static_cast<std::size_t>(look.tipo)] + ' ' +
           std::to_string(look.giorno + look.categoria) + (look.fineGiornata ? "|" : "");
}

/// Below a head row whose column of the groups is called `group`.
Looks looks(const std::vector<Row>& rows, const QString& group = QStringLiteral("Km.")) {
    const std::array<QString, 4> categories{QStringLiteral("Zero"), QStringLiteral("Ottimo"),
                                            QStringLiteral("Campeggio"), QStringLiteral("Altro")};
    const Row head{{guidaGruppo, group}};
    const auto cell = [&rows, &head](int row, int column) -> const QString& {
        static const QString none;
        const Row& cells = row == 0 ? head : rows.at(static_cast<std::size_t>(row - 1));
        const auto found = cells.find(column);
        return found == cells.end() ? none : found->second;
    };
    Looks result;
    for (const AspettoRiga& look : aspettoRighe(static_cast<int>(rows.size()) + 1, cell, categories))
        result.push_back(told(look));
    result.erase(result.begin());
    return result;
}

Row leg(const char16_t* place, const char16_t* stop = u"") {
    return {{colNumero, QStringLiteral("1")}, {colTappa, QString::fromUtf16(place)}, {7, QString::fromUtf16(stop)}};
}

Row onDay(const char16_t* number, const char16_t* place, const char16_t* date) {
    return {{colNumero, QString::fromUtf16(number)},
            {colTappa, QString::fromUtf16(place)},
            {colGiorno, QStringLiteral("Lun")},
            {colData, QString::fromUtf16(date)}};
}

Row line(QStringView place) {
    return {{colTappa, place.toString()}};
}

Row entry(const char16_t* place, const char16_t* category) {
    return {{guidaLuogo, QString::fromUtf16(place)},
            {guidaTipo, QString::fromUtf16(category)},
            {guidaSegno, segnoVoce.toString()}};
}

} // namespace

TEST(AspettoRighe, AreToldFromTheTexts) {
    const struct {
        const char* what;
        std::vector<Row> rows;
        Looks looks;
    } cases[] = {
        {"nothing", {}, {}},
        {"an empty table", {{}, {}}, {"vuota 0", "vuota 0"}},
        {"legs, one that ends a day, no day at a stop without a place",
         {leg(u"ROMA [Start]", u"00:01:00"), leg(u"OSTIA", u"*00:02:00"), {{7, QStringLiteral("*")}}, leg(u"PISA"), {}},
         {"tappa 0", "tappa 0|", "vuota 0", "tappa 0", "vuota 0"}},
        {"two days with a stop, a mention without a date, a new day",
         {onDay(u"1", u"ROMA", u"05/07"), onDay(u"", u" > Foro", u"05/07"), line(u" > Colosseo"),
          onDay(u"", u" > Partenza mattino successivo", u"06/07"), onDay(u"5", u"OSTIA", u"06/07")},
         {"V tappa 0", "V sosta 0", "V sosta 0|", "V mattino 1", "V tappa 1|"}},
        {"a mention before the first date; a date that comes again is another day; a row left empty ends no day",
         {line(u" > Foro"),
          onDay(u"2", u"ROMA", u"05/07"),
          onDay(u"3", u"PISA", u"06/07"),
          onDay(u"4", u"LUCCA", u"05/07"),
          {}},
         {"V sosta 0", "V tappa 0|", "V tappa 1|", "V tappa 2|", "V vuota 2"}},
        {"totals, and the empty row behind them",
         {onDay(u"1", u"ROMA", u"05/07"),
          onDay(u"2", u"OSTIA", u"06/07"),
          line(u"Totali: Km e tempi (gg:hh:mm):"),
          line(u"Percorso specifico:\t"),
          line(u"\t\tKm. 0"),
          line(u"Intero percorso:\t"),
          line(u"\t\tKm. 20"),
          {}},
         {"V tappa 0|", "V tappa 1|", "V titolo 1", "V titolo 1", "V totale 1", "V titolo 1", "V totale 1",
          "V vuota 1"}},
        {"a place called like the totals is a leg while it has a number",
         {onDay(u"1", u"Totali: Km e tempi (gg:hh:mm):", u"05/07"), onDay(u"", u" > Foro", u"05/07")},
         {"V tappa 0", "V sosta 0|"}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(looks(c.rows), c.looks) << c.what;
}

TEST(AspettoRighe, PlacesOfTheGuideAndTheirEntries) {
    EXPECT_EQ(looks({leg(u"ROMA [Start]", u"*"),
                     entry(u"Roma", u"Ottimo"),
                     entry(u"Roma", u"CAMPEGGIO"),
                     entry(u"Roma", u"Museo"),
                     entry(u"Roma", u"Zero"),
                     line(u"PISA"),
                     {}},
                    testaGruppo.toString()),
              Looks({"luogo 0", "voce 1", "voce 2", "voce 0", "voce 0", "luogo 0", "vuota 0"}));
}

} // namespace vanzer
