// SPDX-License-Identifier: MIT
// How the archive compares, sorts and searches.
#include "store_fixture.h"

#include "core/collation.h"
#include "store/query_sql.h"

namespace vanzer::store {
namespace {

int sign(int x) {
    return (x > 0) - (x < 0);
}

TEST(Collation, LettersFirstThenAccents) {
    const std::pair<const char*, const char*> rows[] = {// in ascending order, or equal; separated by blanks
                                                        {" a Roma Romano", "rises"},
                                                        {"cote coté côte cotf", "rises"},
                                                        {"Citta Città Cittab", "rises"},
                                                        {"E È Eza Èze Ezf Fano", "rises"},
                                                        {"strasse straße", "rises"},
                                                        {"N Ñ O", "rises"},
                                                        {"e e\xcc\x81 é ea e\xcc\x81z", "rises"},
                                                        {"각 갂 나", "rises"},
                                                        {"zzz \xff", "rises"},
                                                        {"a a\xc3", "rises"},
                                                        {"I İ", "rises"},
                                                        {"Roma rOMA", "equal"},
                                                        {"È è", "equal"},
                                                        {"Città CITTÀ", "equal"},
                                                        {"ẞ ß", "equal"},
                                                        {"ŽIŽKOV žižkov", "equal"},
                                                        {"Αθήνα ΑΘΉΝΑ", "equal"}};
    for (const auto& [texts, how] : rows) {
        const QByteArrayList words = QByteArray(texts).split(' ');
        for (qsizetype i = 1; i < words.size(); ++i) {
            const int expected = *how == 'r' ? -1 : 0;
            const std::string a = words[i - 1].toStdString();
            const std::string b = words[i].toStdString();
            EXPECT_EQ(sign(compare(a, b)), expected) << a << " / " << b;
            EXPECT_EQ(sign(compare(b, a)), -expected) << b << " / " << a;
        }
    }
}

TEST(Collation, BaseLettersBoundEveryTextThatBeginsAlike) {
    for (const char* text : {"Èze", "CITTÀ", "e\xcc\x81", "Straße", "각", "Ångström"}) {
        const QByteArray from = lettereBase(QString::fromUtf8(text));
        const std::string longer = std::string(text) + "zz\U0010fffd";
        EXPECT_LE(compare({from.constData(), static_cast<std::size_t>(from.size())}, text), 0) << text;
        EXPECT_GT(compare((from + oltreOgniLettera).toStdString(), longer), 0) << text;
    }
}

TEST(Collation, Like) {
    constexpr struct {
        const char* pattern;
        const char* text;
        bool expected;
    } rows[] = {{"roma*", "Roma", true}, {"roma*", "ROMANA", true},  {"*na", "romanb", false},
                {"r?ma", "rÒma", true},  {"citta*", "Città", false}, {"CITTÀ*", "città alta", true},
                {"*", "", true},         {"", "a", false},           {"a*b*c", "axxbxxbc", true},
                {"50%_", "50xy", false}, {"**a**", "a", true},       {"?*?", "è", false},
                {"*ab", "aab", true}};
    for (const auto& row : rows)
        EXPECT_EQ(resembles(row.pattern, row.text), row.expected) << row.pattern << " / " << row.text;
    // This pattern takes very long in a matcher that tries all ways.
    EXPECT_FALSE(resembles("*a*a*a*a*a*a*a*a*a*a*a*a*b", std::string(3000, 'a')));
}

TEST(QueryText, IsReadInItsOneForm) {
    constexpr std::pair<const char*, const char*> rows[] = {
        // read as: table | field=text or field~pattern, ... | order
        {"Itinerari", "Itinerari||"},
        {"select*from T where a='x'", "T|a=x,|"},
        {"SELECT * FROM T WHERE Localita LIKE 'L''AQUILA*' AND b = ''", "T|Localita~L'AQUILA*,b=,|"},
        {"SELECT * FROM T WHERE(a LIKE 'x' AND b='0')ORDER BY c,d DESC , e", "T|a~x,b=0,|c,d-,e,"},
        {"SELECT * FROM T  WHERE  a = 'AND ( ORDER' and (b LIKE '''')", "T|a=AND ( ORDER,b~',|"},
        {"SELECT * FROM T WHERE a='x' b='y'", nullptr},
        {"SELECT * FROM T WHERE (a='x'", nullptr},
        {"SELECT * FROM T WHERE a='x')", nullptr},
        {"SELECT * FROM T WHERE (a='x') AND (b='y')", nullptr},
        {"SELECT * FROM T WHERE a='L'AQUILA'", nullptr},
        {"SELECT * FROM T WHERE a='x", nullptr},
        {"SELECT * FROM T WHERE a='x' OR b='y'", nullptr},
        {"SELECT * FROM T ORDER a", nullptr},
        {"SELECT * FROM T; DROP TABLE T", nullptr},
        {"SELECT a FROM T", nullptr},
        {"", nullptr},
    };
    for (const auto& row : rows) {
        QString read;
        const auto failure = failureOf([&] {
            const Query query = parsed(QString::fromUtf8(row.first));
            read = query.table + u'|';
            for (const Condition& c : query.where)
                read += c.field + (c.test == Condition::Test::Like ? u'~' : u'=') + c.text + u',';
            read += u'|';
            for (const Order& o : query.orderBy)
                read += o.field + (o.descending ? QStringLiteral("-,") : QStringLiteral(","));
        });
        if (row.second == nullptr)
            EXPECT_EQ(failure, StoreError::Kind::Other) << row.first << " read as " << read.toStdString();
        else
            EXPECT_EQ(read.toStdString(), row.second) << row.first;
    }
}

using StoreQuery = StoreTest;

TEST_F(StoreQuery, FindsByEqualityAndPattern) {
    addGuide({{"ROMA", "1"},
              {"Roma", "2"},
              {"Romà", "3"},
              {"ROMANO", "4"},
              {"L'Aquila", "5"},
              {"Èze", "6"},
              {"EZE", "7"},
              {QString(), "8"},
              {"Porto (A)", "9"},
              {"Aroma", "a"}});
    const std::pair<QString, QString> rows[] = {{"Localita = 'roma'", "1,2"},
                                                {"Localita LIKE 'roma'", "1,2"},
                                                {"localita LIKE 'roma*'", "1,2,4"},
                                                {"Localita LIKE 'romà*'", "3"},
                                                {"Localita LIKE 'rom?'", "1,2,3"},
                                                {"Localita LIKE '*rom*'", "1,2,3,4,a"},
                                                {"Localita LIKE 'è*'", "6"},
                                                {"Localita LIKE 'e*'", "7"},
                                                {"Localita LIKE '*'", "1,2,3,4,5,6,7,9,a"},
                                                {"Localita LIKE 'l''a*'", "5"},
                                                {"Localita = '*'", ""},
                                                {"Localita LIKE 'porto (*' AND Descrizione LIKE '?'", "9"},
                                                {"Localita LIKE 'roma*' AND (Descrizione = '4')", "4"},
                                                {"Localita = ''", ""}};
    for (const auto& [where, found] : rows) {
        EXPECT_EQ(texts("SELECT * FROM GuidaCitta WHERE " + where, "Descrizione").join(u','), found)
            << where.toStdString();
        EXPECT_EQ(archive.NumeroRecord(), found.split(u',', Qt::SkipEmptyParts).size()) << where.toStdString();
    }
    for (const QString& name : {QStringLiteral("L'Aquila"), QStringLiteral("''"), QStringLiteral("a'b''c")}) {
        addGuide({{name, "quoted"}});
        EXPECT_FALSE(
            open("SELECT * FROM GuidaCitta WHERE Descrizione='quoted' AND Localita = '" + quotato(name) + "'").EOF_());
    }
}

TEST_F(StoreQuery, SortsWithTiesAsAdded) {
    addGuide(
        {{"Fano", "1"}, {"èze", "2"}, {"EZE", "3"}, {QString(), "4"}, {"eze", "5"}, {"Éa", "6"}, {QString(), "7"}});
    const std::pair<QString, QString> rows[] = {
        {"Localita", "4,7,6,3,5,2,1"},
        {"Localita DESC", "1,2,3,5,6,4,7"}, // equal ones as they were added, those without a value last
        {"FlagVisto, Localita DESC", "1,2,3,5,6,4,7"},
        {"Descrizione DESC", "7,6,5,4,3,2,1"},
    };
    for (const auto& [order, found] : rows) {
        const QString query = "SELECT * FROM GuidaCitta ORDER BY " + order;
        EXPECT_EQ(texts(query, "Descrizione").join(u','), found) << order.toStdString();
        Recordset& rs = open(query);
        rs.MoveLast();
        EXPECT_EQ(rs.testo("Descrizione"), found.last(1)) << order.toStdString();
        rs.MoveNext();
        EXPECT_TRUE(rs.EOF_());
    }
}

TEST_F(StoreQuery, UsesTheIndexes) {
    const std::pair<QString, QString> rows[] = {
        {"SELECT * FROM Itinerari WHERE CodiceMeta = '1' ORDER BY Sequenza",
         "USING INDEX Itinerari.CodiceMeta (CodiceMeta=?)"},
        {"SELECT * FROM GuidaCitta WHERE Localita LIKE 'Roma'", "USING INDEX GuidaCitta.Localita (Localita=?)"},
        {"SELECT * FROM GuidaCitta WHERE (Localita LIKE 'Roma*' AND FlagVisto = '0') ORDER BY CodiceGuida, TempoSosta "
         "DESC",
         "USING INDEX GuidaCitta.Localita (Localita>? AND Localita<?)"},
        {"SELECT * FROM GuidaCitta WHERE Localita LIKE 'Ro?a*'",
         "USING INDEX GuidaCitta.Localita (Localita>? AND Localita<?)"},
        {"SELECT * FROM MeteVanzer ORDER BY Localita", "SCAN MeteVanzer USING INDEX MeteVanzer.Localita"},
    };
    for (const auto& [query, expected] : rows) {
        const auto form = translate(*archive.Db(0), parsed(query)).form;
        for (const QByteArray& sql : {form->select, form->last}) {
            const QString plan = archive.Db(0)->piano(sql).join(u'\n');
            EXPECT_TRUE(plan.contains(expected)) << query.toStdString() << "\n" << plan.toStdString();
        }
    }
    for (const char* unknown : {"Nulla", "Itinerari WHERE Nulla = 'x'", "Itinerari ORDER BY Nulla"})
        EXPECT_EQ(failureOf([&] { open("SELECT * FROM " + QString(unknown)); }), StoreError::Kind::Other) << unknown;
}

} // namespace
} // namespace vanzer::store
