// Route lists of planners, and the filter by the stops of a stop file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/text.h"
#include "exchange/itn_filter.h"
#include "exchange/route_package.h"

namespace vanzer {

namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

const QString italian = u"Ora\tkm\tIstruzioni"_s;
const QString english = u"Time\tkm\tInstruction"_s;
const QString places = u". Località\tDirezione\tDistanza\tTempo\tPosizione opposta"_s;

/// A leg as "PLACE|ROADS|km/progressive|type", with a T behind it for a ferry.
std::string shown(const TappaImportata& leg) {
    return (leg.luogo + u'|' + leg.strade + u'|' + QString::number(leg.km) + u'/' + QString::number(leg.kmProgressivo) +
            u'|' + (leg.autostrada ? u'A' : u'P') + (leg.traghetto ? u"T"_s : u""_s))
        .toStdString();
}

std::vector<std::string> legs(const QString& head, const QStringList& rows) {
    const QString title = u"Riepilogo "_s + QString(200, u'-');
    const PercorsoImportato route = leggePacchetto((title + u'\n' + head + u'\n' + rows.join(u'\n')).toUtf8());
    EXPECT_NE(route.formato, Pacchetto::Sconosciuto);
    std::vector<std::string> result;
    for (const TappaImportata& leg : route.tappe)
        result.push_back(shown(leg));
    return result;
}

TEST(CurrentRoad, IsTheLastRunOfDigitsAndCapitals) {
    const struct {
        const char16_t* instruction;
        const char16_t* road; ///< null: nothing leads to a road
    } cases[] = {
        {u"Turn RIGHT onto D940", u"D940"},
        {u"Svoltare a DESTRA su SS33 (Via Roma)", u"SS33"},
        {u"Take E15/A26 on the left", u""},
        {u"Continue on A1 (Autosole)", u"A1"},
        {u"Keep [A16] Calais", u"A16"},
        {u"Keep on [A16] to [E40]", u"E40"},
        {u"Keep on [A16/E40]", u"E40]"},
        {u"Keep on [A16", u"A1"},
        {u"Go on M", u""},
        {u"Go on road LEFT", u""},
        {u"Go ON THE M20", u"M20"},
        {u"Turn onto Via Roma", u""},
        {u"Turn RIGHT", nullptr},
        {u"", nullptr},
    };
    for (const auto& c : cases) {
        const auto road = RilevaStradaCorrente(QString::fromUtf16(c.instruction));
        const QString name = QString::fromUtf16(c.instruction);
        ASSERT_EQ(road.has_value(), c.road != nullptr) << name.toStdString();
        if (road) {
            EXPECT_EQ(*road, QString::fromUtf16(c.road)) << name.toStdString();
        }
    }
}

TEST(RouteList, IsKnownByItsHeadRow) {
    const struct {
        QString head;
        Pacchetto format;
    } cases[] = {
        {italian, Pacchetto::MapPointItaliano},
        {u"L'ORA\tKM\tistruzioni\taltro"_s, Pacchetto::MapPointItaliano},
        {english, Pacchetto::MapPointInglese},
        {places, Pacchetto::Autoroute},
        {u"Località\tDirezione\tDistanza"_s, Pacchetto::Sconosciuto},
        {u"Ora\tmi\tIstruzioni"_s, Pacchetto::Sconosciuto},
        {u"Ora;km;Istruzioni"_s, Pacchetto::Sconosciuto},
    };
    for (const auto& c : cases)
        EXPECT_EQ(leggePacchetto((c.head + u'\n' + QString(200, u'x')).toUtf8()).formato, c.format)
            << c.head.toStdString();
}

TEST(RouteList, HeadRowStandsInTheFirstSixteenLinesOfAFileThatIsNotTooShort) {
    const QByteArray row = "\n10:00\t5.0\tArrivo Pisa\n";
    for (const auto& [above, known] : {std::pair{0, true}, {15, true}, {16, false}}) {
        const QByteArray file = QByteArray(above, '\n') + italian.toUtf8() + row + QByteArray(200, 'x');
        EXPECT_EQ(leggePacchetto(file).formato != Pacchetto::Sconosciuto, known) << above;
    }
    const QByteArray head = italian.toUtf8() + row;
    EXPECT_EQ(leggePacchetto(head + QByteArray(150 - head.size(), 'x')).formato, Pacchetto::Sconosciuto);
    EXPECT_EQ(leggePacchetto(head + QByteArray(151 - head.size(), 'x')).tappe.size(), 1U);
    EXPECT_EQ(leggePacchetto({}).formato, Pacchetto::Sconosciuto);
}

TEST(RouteList, ComesInAnyCodeWithAnyLineEnd) {
    const QString text = italian + u"\n9:00\t0.0\tPartenza Forlì\n9:30\t40.0\ta Città di Castello, su SS71\n"_s +
                         QString(150, u'x') + u"\n10:00\t50.5\ta Forlì"_s;
    QString crlf = text;
    crlf.replace(u'\n', u"\r\n"_s);
    const QByteArray files[] = {text.toUtf8(), "\xef\xbb\xbf" + crlf.toUtf8(), crlf.toLatin1(), text.toLatin1() + "\n",
                                QString(text).replace(u'\n', u'\r').toLatin1()};
    for (const QByteArray& file : files) {
        std::vector<std::string> read;
        for (const TappaImportata& leg : leggePacchetto(file).tappe)
            read.push_back(shown(leg));
        EXPECT_THAT(read, ElementsAre("FORLÌ||0/0|P", "CITTÀ DI CASTELLO|SS71|40/40|P", "FORLÌ||10/50|P"));
    }
}

TEST(TimedList, EachKindOfRow) {
    const struct {
        const char* what;
        const char16_t* rows; ///< columns 2 and 3, rows parted by "/"
        std::vector<std::string> legs;
    } cases[] = {
        {"departure, arrival", u"0\tPartenza Torino/12.5\tArrivo Asti", {"TORINO||0/0|P", "ASTI||12/12|P"}},
        {"departure near a place", u"0\tPartenza da vicino a Torino", {"TORINO||0/0|P"}},
        {"one departure only", u"0\tDepart Lyon/5\tDepart Paris", {"LYON||0/0|P"}},
        {"arrival near a place: its second word", u"3\tArrivo vicino Asti nord", {"NORD||3/3|P"}},
        {"an arrive row reads like an at row", u"7\tarrive Calais, then on A16", {"CALAIS|A16|7/7|A"}},
        {"place up to the comma", u"7\ta Milano Est, proseguire", {"MILANO EST||7/7|P"}},
        {"place to the end", u"7\tpresso Milano Est", {"MILANO EST||7/7|P"}},
        {"no place at a roundabout", u"7\tAt roundabout take A4 onto A5", {}},
        {"exit with a comma: what follows it", u"7\tAt exit 12, turn RIGHT onto A20/9\tat Gent", {"GENT|A20|9/9|A"}},
        {"exit without: the brackets", u"7\tAt exit [Gent Zuid] on N9", {"GENT ZUID|N9|7/7|P"}},
        {"exit without brackets", u"7\tAt exit Gent on N9/9\tat Brugge", {"BRUGGE|N9|9/9|P"}},
        {"toll and gate go", u"7\t*TOLL ROAD* at Reims *gate access required*", {"REIMS||7/7|P"}},
        {"a row near a place gives none", u"7\tvicino a Pisa, su A11/9\ta Lucca", {"LUCCA||9/9|P"}},
        {"the name without its junction", u"7\ta Svincolo Lucca Est, su A11", {"LUCCA EST|A11|7/7|A"}},
        {"entry",
         u"7\tEntering France/8\tIngresso in Italia",
         {"INGRESSO IN FRANCE||7/7|P", "INGRESSO IN ITALIA||1/8|P"}},
        {"ferry behind a star", u"9\tcontrollo orari * - Calais-Dover, 90 min", {"CALAIS-DOVER|TRAGH|9/9|PT"}},
        {"ferry behind su", u"9\tcontrollo orari su Moby (Livorno)", {"MOBY|TRAGH|9/9|PT"}},
        {"ferry of no place", u"9\tcontrollo orari qui/12\ta Olbia", {"OLBIA||12/12|P"}},
        {"ferry without a place, in English", u"9\tcheck timetable now/12\tat Olbia", {"OLBIA|TRAGH|12/12|PT"}},
        {"the same place once", u"7\ta Pisa/9\ta Pisa", {"PISA||7/7|P"}},
        {"a road once within a leg", u"1\tgo onto A1/2\tgo onto SS9/3\tgo onto A1/4\ta Pisa", {"PISA|A1 SS9|4/4|A"}},
        {"the road that goes on belongs to the next leg",
         u"1\tgo on A1/4\ta Pisa, on SS1/6\ta Lucca",
         {"PISA|A1|4/4|A", "LUCCA|SS1|2/6|P"}},
        {"thousands marks end the figure", u"999.9\ta Pisa/1.024,5\ta Lucca", {"PISA||1000/1000|P", "LUCCA||-999/1|P"}},
        {"halves to the even", u"2.5\ta Pisa/3.5\ta Lucca", {"PISA||2/2|P", "LUCCA||2/4|P"}},
        {"missing columns", u"/7/\t/8\ta Pisa", {"PISA||8/8|P"}},
    };
    for (const auto& c : cases) {
        QStringList rows;
        for (const QString& row : QString::fromUtf16(c.rows).split(u'/'))
            rows << u"10:00\t"_s + row;
        EXPECT_EQ(legs(english, rows), c.legs) << c.what;
        EXPECT_EQ(legs(italian, rows), c.legs) << c.what;
    }
}

TEST(PlaceList, EachKindOfRow) {
    const struct {
        const char* what;
        QStringList rows; ///< place, direction, running kilometres, parted by "|"
        std::vector<std::string> legs;
    } cases[] = {
        {"place and road in brackets", {u"Asti (A21)||12 KM"_s}, {"ASTI|A21\\|12/12|A"}},
        {"road in front", {u"(A21) Asti||12 KM"_s}, {"ASTI|A21\\|12/12|A"}},
        {"road alone, for the next leg", {u"-A21||5 KM"_s, u"Asti||12 KM"_s}, {"ASTI|A21\\|12/12|A"}},
        {"road in brackets alone", {u"(A21)||5 KM"_s, u"Asti||12 KM"_s}, {"ASTI|A21\\|12/12|A"}},
        {"number behind the name", {u"Asti 21, uscita||12 KM"_s}, {"ASTI|21, uscita\\|12/12|P"}},
        {"road at the direction's end", {u"Asti|sempre su SS10|12 KM"_s}, {"ASTI|SS10\\|12/12|P"}},
        {"place from the direction", {u"|in direzione di Cuneo|12 KM"_s}, {"DIREZIONE CUNEO||12/12|P"}},
        {"border: the place, then the country",
         {u"Ventimiglia|confine verso Francia|12 KM"_s},
         {"VENTIMIGLIA||12/12|P", "INGRESSO IN FRANCIA||0/12|P"}},
        {"ferry", {u"|traghetto|5 KM"_s, u"Bastia||12 KM"_s}, {"BASTIA|TRAGH|12/12|PT"}},
        {"a counter that begins again", {u"Asti||12 KM"_s, u"Cuneo||3 KM"_s}, {"ASTI||12/12|P", "CUNEO||3/15|P"}},
        {"no counter, no leg", {u"Asti||12"_s}, {}},
        {"less than a kilometre on", {u"Asti||12 KM"_s, u"Cuneo||12 KM"_s}, {"ASTI||12/12|P"}},
        {"the same place once", {u"Asti||12 KM"_s, u"Asti||20 KM"_s}, {"ASTI||12/12|P"}},
        {"a republic's first word is short", {u"Repubblica Ceca||12 KM"_s}, {"REP.  CECA||12/12|P"}},
        {"a bracket that isn't closed",
         {u"(A1) Asti||9 KM"_s, u"Asti Est (nord||12 KM"_s},
         {"ASTI|A1\\|9/9|A", "ASTI EST|nord\\|3/12|P"}},
        {"a name that won't fit with its road",
         {u"-SS10||1 KM"_s, u"Villanova d'Asti (centro storico)||9 KM"_s},
         {"VILLANOVA D'ASTI|SS10\\|9/9|P"}},
        {"rows without text", {u"Asti||12 KM"_s, u"||"_s, u"Cuneo||15 KM"_s}, {"ASTI||12/12|P", "CUNEO||3/15|P"}},
    };
    for (const auto& c : cases) {
        QStringList rows;
        for (const QString& row : c.rows) {
            const QStringList columns = row.split(u'|');
            rows << QStringList{columns[0], columns[1], {}, {}, columns[2]}.join(u'\t');
        }
        EXPECT_EQ(legs(places, rows), c.legs) << c.what;
    }
}

TEST(StopFile, ALineThatBeginsWithANumberIsAStop) {
    EXPECT_EQ(leggeMete("lon,lat,nome\r\n8.61,45.4,\"NOVARA\"\r\n-1.2,3,Pont, l'Abbe\n 12 ,1, due \n\nN8.1,4,NO\n"
                        "12.5x,1,X\n7.1\n9.10,4,\n,.-+,1,NO\n+1,2,\"A\"\"B\""),
              (QStringList{u"NOVARA"_s, u"l'Abbe"_s, u"due"_s, u"X"_s, u"7.1"_s, QString(), u"AB"_s}));
    EXPECT_EQ(leggeMete({}), QStringList());
    EXPECT_EQ(leggeMete("8.61,45.4,FORL\xcc"), QStringList{u"FORLÌ"_s});
}

std::vector<RigaPercorso> route(const QStringList& names) {
    std::vector<RigaPercorso> rows;
    for (const QString& name : names)
        rows.push_back({name, u"A1"_s, 10});
    return rows;
}

QStringList names(const std::vector<RigaPercorso>& rows) {
    QStringList result;
    for (const RigaPercorso& row : rows)
        result << row.luogo;
    return result;
}

TEST(Stops, MarkTheLegThatTheyFallOn) {
    const struct {
        const char* what;
        QStringList legs, stops, marked;
    } cases[] = {
        {"beginning, case ignored", {u"ASTI EST"_s, u"ASTI"_s}, {u"Asti"_s}, {u"ASTI EST [00001]"_s, u"ASTI"_s}},
        {"equal stops, one after the other",
         {u"ASTI"_s, u"ASTI"_s, u"ASTI"_s},
         {u"ASTI"_s, u"ASTI"_s},
         {u"ASTI [00001]"_s, u"ASTI [00002]"_s, u"ASTI"_s}},
        {"longest part anywhere, marked or not",
         {u"USCITA ASTI"_s, u"CUNEO"_s},
         {u"Nord;Asti;Bra"_s, u"uscita"_s, u"asti, Torino"_s},
         {u"USCITA ASTI [00002]"_s, u"CUNEO"_s}},
        {"two stops on one leg", {u"ASTI"_s}, {u"ASTI"_s, u"sti"_s}, {u"ASTI [00001] [00002]"_s}},
        {"what fits nowhere, and an empty name", {u"ASTI"_s}, {u"Bra"_s, QString(), u"as"_s}, {u"ASTI [00003]"_s}},
        {"a short part", {u"BRA"_s, u"RA"_s}, {u"ra"_s, u"ra"_s}, {u"BRA [00002]"_s, u"RA [00001]"_s}},
        {"a part of a mark", {u"ASTI"_s}, {u"ASTI"_s, u"00001]"_s}, {u"ASTI [00001] [00002]"_s}},
    };
    for (const auto& c : cases) {
        auto rows = route(c.legs);
        segnaMete(rows, c.stops);
        EXPECT_EQ(names(rows), c.marked) << c.what;
    }
}

TEST(Stops, TheLegsBetweenAreFolded) {
    std::vector<RigaPercorso> rows{{u"A"_s, u"A1"_s, 1},
                                   {u"B [00001]"_s, u"SS1"_s, 2},
                                   {u"C"_s, u"A2"_s, 4},
                                   {u"D"_s, u"A2"_s, 8},
                                   {u"INGRESSO IN FRANCIA DEL NORD"_s, u"A"_s, 16},
                                   {u"E [00002]"_s, {}, 32},
                                   {u"F"_s, u"A3"_s, 64}};
    std::vector<std::string> left;
    for (const RigaRimasta& row : piegaTappe(rows, 30))
        left.push_back((QString::number(row.riga) + u' ' + row.cella.luogo + u'|' + row.cella.strade + u'|' +
                        QString::number(row.cella.km))
                           .toStdString());
    EXPECT_THAT(left, ElementsAre("2 B [1]|A1 SS1|3", "5 Ingresso in Francia Del Nord|A2|28", "6 E [2]||32"));
}

TEST(Stops, AreShownShort) {
    const struct {
        QString marked, shown;
    } cases[] = {
        {u"ASTI [00012]"_s, u"ASTI [12]"_s},
        {u"ASTI [00100]"_s, u"ASTI [100]"_s},
        {u"ASTI [00012] [00014]"_s, u"ASTI [12-14]"_s},
        {u"ASTI [00012] [00013] [00104]"_s, u"ASTI [12-104]"_s},
        {u"ASTI [Park] [00012]"_s, u"ASTI [Park: 12]"_s},
        {u"CASTELNUOVO DELLA MISERICORDIA BASSA [00012]"_s, u"CASTELNUOVO DELLA MISERICORDIA[12]"_s},
        {u"CASTELNUOVO DELLA MISERICORDIA [00012]"_s, u"CASTELNUOVO DELLA MISERICORDIA[12]"_s},
    };
    for (const auto& c : cases) {
        const auto left = piegaTappe({{c.marked, {}, 0}}, 30);
        ASSERT_EQ(left.size(), 1U);
        EXPECT_EQ(left.front().cella.luogo, c.shown);
    }
    EXPECT_EQ(senzaNumerazione(u"ASTI [Start] [12]"_s), u"ASTI [Start]");
    EXPECT_EQ(senzaNumerazione(u"ASTI"_s), u"ASTI");
}

} // namespace

} // namespace vanzer
