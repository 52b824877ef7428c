// SPDX-License-Identifier: MIT
// How the rows of the table are recognized.
#include <gtest/gtest.h>

#include <QStringList>

#include "guide/entries.h"
#include "schedule/row_look.h"
#include "schedule/rows.h"

namespace vanzer {

/// The looks of rows. The rows are separated by "/", their cells are "column=text" separated by ",", below a head row
/// with a name for the group column. Each look is "V" for a row of a schedule, the kind, the day or category, and "|"
/// at the end of a day.
std::string looks(const QString& rows, const QString& group = QStringLiteral("Km.")) {
    std::vector<std::map<int, QString>> cells{{{guidaGruppo, group}}};
    for (const QString& row : rows.split(u'/')) {
        auto& made = cells.emplace_back();
        for (const QString& cell : row.split(u',', Qt::SkipEmptyParts))
            made[cell.section(u'=', 0, 0).toInt()] = cell.section(u'=', 1);
    }
    const auto cell = [&cells](int row, int column) -> const QString& {
        return cells.at(static_cast<std::size_t>(row))[column];
    };
    const std::array<QString, 4> categories{"Zero", "Ottimo", "Campeggio", "Altro"};
    constexpr std::array kinds{"vuota", "tappa", "sosta", "mattino", "titolo", "totale", "luogo", "voce"};
    std::string told;
    for (const AspettoRiga& look : aspettoRighe(static_cast<int>(cells.size()), cell, categories))
        told += (look.viandoria ? "V " : "") + std::string(kinds[static_cast<std::size_t>(look.tipo)]) + ' ' +
                std::to_string(look.giorno + look.categoria) + (look.fineGiornata ? "| " : " ");
    return told.substr(told.find(' ', told.find(' ') + 1) + 1); // without the head row
}

TEST(AspettoRighe, AreToldFromTheTexts) {
    static_assert(colNumero == 0 && colTappa == 1 && colGiorno == 9 && colData == 10);
    const std::pair<QString, const char*> cases[] = {
        {"0=1,1=ROMA [Start],7=00:01:00/0=2,1=OSTIA,7=*00:02:00/7=*/0=3,1=PISA/",
         "tappa 0 tappa 0| vuota 0 tappa 0 vuota 0 "},
        // Two days with a stop, a mention without a date, a new day.
        {"0=1,1=ROMA,9=Lun,10=05/1= > Foro,9=Lun,10=05/1= > Colosseo/"
         "1= > Partenza mattino successivo,9=Lun,10=06/0=5,1=OSTIA,9=Lun,10=06",
         "V tappa 0 V sosta 0 V sosta 0| V mattino 1 V tappa 1| "},
        // A mention before the first date. A repeated date is another day. An empty row ends no day.
        {"1= > Foro/0=2,1=ROMA,9=Lun,10=05/0=3,1=PISA,9=Lun,10=06/0=4,1=LUCCA,9=Lun,10=05/",
         "V sosta 0 V tappa 0| V tappa 1| V tappa 2| V vuota 2 "},
        {"0=1,1=ROMA,9=Lun,10=05/1=Totali: Km e tempi (gg:hh:mm):/1=Percorso specifico:\t/1=\t\tKm. 0/",
         "V tappa 0| V titolo 0 V titolo 0 V totale 0 V vuota 0 "},
        // A place named like the totals is a leg if it has a number.
        {"0=1,1=Totali: Km e tempi (gg:hh:mm):,9=Lun,10=05/1= > Foro,9=Lun,10=05", "V tappa 0 V sosta 0| "},
    };
    for (const auto& [rows, told] : cases)
        EXPECT_EQ(looks(rows), told);
}

TEST(AspettoRighe, PlacesOfTheGuideAndTheirEntries) {
    const auto entry = [](const char* category) {
        return QString("%1=Roma,%2=%3,%4=%5/")
            .arg(guidaLuogo)
            .arg(guidaTipo)
            .arg(category)
            .arg(guidaSegno)
            .arg(segnoVoce);
    };
    EXPECT_EQ(
        looks("1=ROMA [Start],7=*/" + entry("Ottimo") + entry("CAMPEGGIO") + entry("Museo") + entry("Zero") + "1=PISA/",
              testaGruppo.toString()),
        "luogo 0 voce 1 voce 2 voce 0 voce 0 luogo 0 vuota 0 ");
}

} // namespace vanzer
