#include <array>

#include <gtest/gtest.h>

#include "guide/entries.h"
#include "schedule/stops.h"

using namespace vanzer;
using namespace Qt::StringLiterals;

namespace {

QString text(const char16_t* s) {
    return QString::fromUtf16(s);
}

TEST(GuideCategory, IsFoundByNameAndByCode) {
    const std::array<QString, 7> names{u"Zero"_s,   u"Ottimo"_s, u"Vedibile"_s, u"Carte/Guide"_s,
                                       u"Ottimo"_s, {},          u"Città"_s};
    struct Row {
        const char16_t* name;
        int code;
    };
    for (const auto& [name, code] : {Row{u"Vedibile", 2}, Row{u"carte/guide", 3}, Row{u"OTTIMO", 4}, Row{u"CITTÀ", 6},
                                     Row{u"Citta", -1}, Row{u"Zero", -1}, Row{u"", -1}, Row{u"Otti", -1}})
        EXPECT_EQ(CodiceTipoGuida(names, text(name)), code) << text(name).toStdString();

    struct Code {
        const char16_t* code;
        const char16_t* name;
    };
    for (const auto& [code, name] : {Code{u"02", u"Vedibile"}, Code{u"05", u""}, Code{u"00", u""}, Code{u"07", u""},
                                     Code{u"-1", u""}, Code{u" ", u""}})
        EXPECT_EQ(nomeTipoGuida(names, text(code)), text(name)) << text(code).toStdString();
}

TEST(GuideGroup, MarksAreSortedAndJoined) {
    struct Row {
        const char16_t* group;
        const char16_t* sorted;
    };
    for (const auto& [group, sorted] :
         {Row{u"B-A", u"A-B"}, Row{u"10-2-1", u"1-10-2"}, Row{u" C ", u"C"}, Row{u"b-A-c", u"A-b-c"}, Row{u"-", u""},
          Row{u"---", u""}, Row{u"-B--A-", u"A-B"}, Row{u"A-A", u"A-A"}, Row{u" ", u""}, Row{u"B - A", u"A-B"},
          Row{u"B,A", u"B,A"}})
        EXPECT_EQ(gruppoOrdinato(text(group)), text(sorted)) << text(group).toStdString();
}

TEST(GuideGroup, BlankAndZeroAreNone) {
    struct Row {
        const char16_t* a;
        const char16_t* b;
        bool same;
    };
    for (const auto& [a, b, same] : {Row{u"", u" ", true}, Row{u"", u"0", true}, Row{u" 0 ", u"", true},
                                     Row{u"a-b", u"A-B ", true}, Row{u"", u"A", false}, Row{u"0", u"00", false}})
        EXPECT_EQ(stessoGruppo(text(a), text(b)), same) << text(a).toStdString() << '|' << text(b).toStdString();
    EXPECT_EQ(gruppoMostrato(u"0"_s), QString());
    EXPECT_EQ(gruppoMostrato(u" B-A "_s), u"B-A"_s);
}

TEST(GuideGroup, TakesDigitsLettersAndDash) {
    struct Row {
        int code;
        int result;
    };
    for (const auto& [code, result] :
         {Row{'a', 'A'}, Row{'z', 'Z'}, Row{'Q', 'Q'}, Row{'0', '0'}, Row{'-', '-'}, Row{8, 8}, Row{13, 13},
          Row{31, 31}, Row{' ', 0}, Row{'_', 0}, Row{'@', 0}, Row{'[', 0}, Row{0xE8, 0}, Row{0x1F600, 0}})
        EXPECT_EQ(carattereGruppo(code), result) << code;
}

TEST(GuideTime, BoxesAndStoredText) {
    EXPECT_EQ(tempoDigitato({}, {}), u"00:00"_s);
    EXPECT_EQ(tempoDigitato(u"02"_s, u" "_s), u"02:00"_s);
    EXPECT_EQ(tempoDigitato({}, u"45"_s), u"00:45"_s);
    EXPECT_EQ(tempoDigitato(u"G2"_s, u"15"_s), u"G2:15"_s);

    struct Row {
        const char16_t* time;
        const char16_t* hours;
        const char16_t* minutes;
    };
    for (const auto& [time, hours, minutes] :
         {Row{u"02:30", u"02", u"30"}, Row{u"G8:15", u"G8", u"15"}, Row{u"G1:00", u"G1", u"00"},
          Row{u"g2:00", u"g2", u"00"}, Row{u"G9:00", u"00", u"00"}, Row{u"G0:45", u"00", u"45"},
          Row{u":", u"00", u"00"}, Row{u" ", u"00", u"00"}, Row{u"1:5", u"01", u"00"}}) {
        EXPECT_EQ(oreMostrate(text(time)), text(hours)) << text(time).toStdString();
        EXPECT_EQ(minutiMostrati(text(time)), text(minutes)) << text(time).toStdString();
    }
}

TEST(GuideEntry, FirstFaultIsTold) {
    const VoceDigitata good{u"Roma"_s, u"Duomo"_s, 1, true, u"01:00"_s};
    const auto with = [&good](auto change) {
        VoceDigitata entry = good;
        change(entry);
        return controllaVoce(entry);
    };
    EXPECT_EQ(controllaVoce(good), EsitoVoce::Buona);
    EXPECT_TRUE(messaggioVoce(EsitoVoce::Buona).isEmpty());
    EXPECT_EQ(with([](auto& e) { e.descrizione = u"  "_s; }), EsitoVoce::MancaDescrizione);
    EXPECT_EQ(with([](auto& e) { e.descrizione.clear(), e.codice = -1, e.tempo = u"00:00"_s; }),
              EsitoVoce::MancaDescrizione);
    EXPECT_EQ(with([](auto& e) { e.codice = -1, e.tempo = u"00:00"_s; }), EsitoVoce::MancaTipologia);
    EXPECT_EQ(with([](auto& e) { e.tempo = u"00:00"_s, e.luogo.clear(); }), EsitoVoce::MancaTempo);
    EXPECT_EQ(with([](auto& e) { e.tempo = u"00:00"_s, e.tempoObbligatorio = false; }), EsitoVoce::Buona);
    EXPECT_EQ(with([](auto& e) { e.luogo = u" "_s; }), EsitoVoce::MancaLuogo);
    EXPECT_EQ(messaggioVoce(EsitoVoce::MancaLuogo), u"Errore! Manca la località!!!"_s);
}

TEST(GuideEntry, RowsAreToldApart) {
    EXPECT_EQ(tipoRigaGuida(u"ROMA [Start]"_s, {}), TipoRigaGuida::Luogo);
    EXPECT_EQ(tipoRigaGuida(u"Roma"_s, u"1"_s), TipoRigaGuida::Voce);
    EXPECT_EQ(tipoRigaGuida(u" "_s, u"1"_s), TipoRigaGuida::Vuota);
}

TEST(GuideEntry, ShortForms) {
    struct Row {
        const char16_t* typed;
        const char16_t* anyKey; ///< description that a key down makes of it; empty: it stays
        bool onPress;
    };
    for (const auto& [typed, anyKey, onPress] :
         {Row{u"diar", u"Diari di bordo", true}, Row{u"DIARio", u"Diari di bordo", true}, Row{u"dia", u"", false},
          Row{u"cs", u"carte/guide - atlanti", false}, Row{u"Cs x", u"carte/guide - atlanti", false},
          Row{u" cs", u"", false}, Row{u"", u"", false}}) {
        const auto form = formaBreve(text(typed));
        EXPECT_EQ(form ? form->descrizione : QString(), text(anyKey)) << text(typed).toStdString();
        EXPECT_EQ(formaDiario(text(typed)).has_value(), onPress) << text(typed).toStdString();
    }
    EXPECT_EQ(formaBreve(u"cs"_s)->tipo, u"carte/guide"_s);
    EXPECT_EQ(formaDiario(u"diari"_s)->tipo, u"Diari bordo"_s);
}

TEST(GuideEntry, RowKeysStayInsideTheGrid) {
    constexpr int rows = 18;
    struct Row {
        int row;
        int key;
        int next;
    };
    for (const auto& [row, key, next] : {Row{5, 38, 4}, Row{1, 38, 1}, Row{5, 40, 6}, Row{17, 40, 17}, Row{14, 33, 2},
                                         Row{5, 33, 1}, Row{3, 34, 15}, Row{9, 34, 17}, Row{5, 65, 5}, Row{5, 13, 5}})
        EXPECT_EQ(rigaDopoTasto(row, key, rows), next) << row << ' ' << key;
}

TEST(GuideStops, AreAddedToTheLegsStop) {
    struct Row {
        const char16_t* stop;
        std::vector<QString> times;
        float visitingDay;
        const char16_t* result;
    };
    const std::vector<Row> rows{
        {u"", {u"01:30"_s, u"00:45"_s}, 800, u"00:02:15"}, {u"00:02:00", {u"01:00"_s}, 900, u"00:03:00"},
        {u"*00:02:00", {u"01:00"_s}, 900, u"00:03:00"}, // the end of the day goes
        {u"01:01:00", {u"07:30"_s}, 850, u"02:00:00"},  // a day is a day of visits, in and out
        {u"01:01:00", {u"23:00"_s}, 0, u"02:00:00"},    // no visiting hours: a whole day
        {u"00:01:00", {u"G2:30"_s}, 900, u"00:01:30"},  // read as it stands
        {u"00:01:00", {u"00:00"_s}, 900, u"00:01:00"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(sostaConGuida(text(row.stop), row.times, row.visitingDay), text(row.result))
            << text(row.stop).toStdString() << " + " << row.times.front().toStdString();
}

} // namespace
