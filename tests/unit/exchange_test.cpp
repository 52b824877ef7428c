// SPDX-License-Identifier: MIT
// The exchange file: its lines, the codes and places of an import, and the records that an import takes.
#include <random>

#include <gtest/gtest.h>

#include "core/text_file.h"
#include "exchange/route_package.h"
#include "support/memory_archive.h"

namespace vanzer {

namespace {

using namespace Qt::StringLiterals;

std::string plain(const QString& text) {
    return text.toStdString();
}

TEST(TextLines, OfAnyCodeAndAnyEnd) {
    const std::pair<QByteArray, QString> cases[] = {
        // the lines joined by "|"
        {"a\r\nb\r\n", u"a|b"_s},
        {"a\nb", u"a|b"_s},
        {"a\rb\r", u"a|b"_s},
        {"a\rb\n", u"a\rb"_s},
        {"a\r\r\nb\r\r\n", u"a|b"_s},
        {"a\n\nb\n", u"a||b"_s},
        {"citt\xe0\n", u"città"_s},
        {"\xef\xbb\xbf"
         "citt\xc3\xa0\n",
         u"città"_s},
        {"\xc3\xa0\n\xe0\n", u"Ã\u00a0|à"_s},
        {"a\xc3", u"aÃ"_s},
    };
    for (const auto& [bytes, expected] : cases) {
        RigheTesto lines(bytes);
        QStringList read;
        while (lines.prossima())
            read += lines.riga().toString();
        EXPECT_EQ(read.join(u'|'), expected) << bytes.toStdString();
        EXPECT_EQ(lines.numero(), read.size());
    }
    EXPECT_FALSE(RigheTesto("").prossima());
}

/// The texts of the fields A, B and C in a record line that follows a head line.
QStringList read(const QString& head, const QString& record) {
    LettoreIei reader({QStringList(), {u"A"_s, u"B"_s, u"C"_s}, QStringList(), QStringList()});
    EXPECT_EQ(reader.read(head), LettoreIei::Riga::Testa);
    EXPECT_EQ(reader.read(record), LettoreIei::Riga::Record);
    return {reader.valore(0), reader.valore(1), reader.valore(2)};
}

TEST(ExchangeLine, FieldsFindTheirColumnsByName) {
    const QString wide = u"xÿ"_s.repeated(98) + u"Bÿ"_s;
    const QString cases[][3] = {
        // the fields joined by "|"
        {u"cÿ aÿbÿ"_s, u" 1 ÿ2ÿ3"_s, u"2|3|1"_s},
        {u"AÿXÿCÿ"_s, u"1ÿ2ÿ3ÿ"_s, u"1| |3"_s},
        {u"AÿAÿBÿ"_s, u"1ÿ2ÿ3ÿ"_s, u"1|3| "_s},
        {u"AÿBÿCÿ"_s, u"1ÿ"_s, u"1| | "_s},
        {u"AÿBÿCÿ"_s, u"1ÿÿ3ÿ4ÿ5ÿ"_s, u"1| |3"_s},
        {u"AÿBÿCÿ"_s, u"\"1\"ÿ\u0001 2\u0007\tÿ3\r"_s, u"1|2\t|3"_s},
        {u"AÿBÿCÿ"_s, u"senza separatore"_s, u"senza separatore| | "_s},
        {wide, u"yÿ"_s.repeated(98) + u"2ÿ"_s, u" |2| "_s},
        {u"xÿ"_s + wide, u"yÿ"_s.repeated(99) + u"2ÿ"_s, u" | | "_s}, // only a hundred columns are read
    };
    for (const auto& [head, record, fields] : cases)
        EXPECT_EQ(read(head, record).join(u'|'), fields) << plain(head) << " | " << plain(record);
    const QString million = u"1"_s.repeated(1'000'000);
    EXPECT_EQ(read(u"AÿBÿCÿ"_s, million + u"ÿ"_s.repeated(1'000'000)), QStringList({million, u" "_s, u" "_s}));
}

TEST(ExchangeLine, AHeadIsTheFirstLineBehindAnotherSection) {
    LettoreIei reader(MemoryArchive::names());
    using enum LettoreIei::Riga;
    const std::pair<QString, LettoreIei::Riga> lines[] = {
        {u"niente"_s, Estranea},   {u"CodiceMetaÿ"_s, Testa}, {u"000001ÿ"_s, Record}, {u""_s, Record},
        {u"CodiceMetaþ"_s, Testa}, {u"000001þ"_s, Record},    {u"Romaý"_s, Testa},    {u"CodiceMetaÿ"_s, Testa}};
    for (const auto& [line, kind] : lines)
        EXPECT_EQ(reader.read(line), kind) << plain(line);
}

TEST(RouteList, CountersBeyondAllNumbersStayAtTheGreatest) {
    constexpr int most = 2'147'483'647;
    const PercorsoImportato route =
        readPackage("Riepilogo\n. Località\tDirezione\tDistanza\tTempo\tPosizione opposta\n" + QByteArray(150, '-') +
                    "\nASTI\t\t\t\t12 KM\nALBA\t\t\t\t99999999999 KM\n"
                    "BRA\t\t\t\t5 KM\nACQUI\t\t\t\t4 KM\n");
    std::vector<int> km;
    for (const TappaImportata& leg : route.tappe)
        km.insert(km.end(), {leg.km, leg.kmProgressivo});
    EXPECT_EQ(km, (std::vector<int>{12, 12, most - 12, most}));
}

TEST(ExchangeCodes, AreKeptWhenFreeElseCountedOn) {
    const QString cases[][3] = {
        // stored codes, chosen codes, and their new codes; empty if that fails
        {u""_s, u"000005 000001"_s, u"000005 000001"_s},
        {u"000001 000004"_s, u"000900"_s, u"000900"_s},
        {u"000001 000004"_s, u"000004 000001"_s, u"000005 000006"_s},
        {u"000001"_s, u"000001 000002"_s, u"000003 000002"_s}, // the other one keeps 2
        {u"000001 999999"_s, u"000001"_s, u"000000"_s},        // the digits start again
        {u"000001 AAAAAA"_s, u"aaaaaa"_s, u"000002"_s},
        {u"000012"_s, u"1"_s, u"3"_s},                   // a part of a stored code counts as used
        {u""_s, u"000005 000005"_s, u"000005 000001"_s}, // a damaged file: each destination still gets its own code
        {u"000005"_s, u"000005 000005"_s, u"000006 000007"_s},
        {u""_s, u"1234567"_s, u""_s},
        {u"0 1 2 3 4 5 6 7 8 9"_s, u"3"_s, u""_s},
    };
    for (const auto& [stored, chosen, fresh] : cases) {
        CodiciMete codes;
        QStringList given;
        if (codes.assign(stored.split(u' ', Qt::SkipEmptyParts), chosen.split(u' '), 6) ==
            CodiciMete::Esito::Assegnati) {
            for (const QString& old : chosen.split(u' ')) {
                given += *codes.perMeta(old);
                codes.accept(old);
            }
        }
        EXPECT_EQ(given.join(u' '), fresh) << plain(chosen);
    }
}

/// Random names of few letters, so that many are alike. Some characters only look like a letter, or fold to one.
QString randomName(std::mt19937& chance) {
    static const QString letters = u"aAbBkKsS è'(?*K\u017fÈ\t"_s;
    QString name;
    for (auto length = chance() % 6; length > 0; --length)
        name += letters[static_cast<qsizetype>(chance() % static_cast<unsigned>(letters.size()))];
    if (chance() % 10 == 0)
        name += u"🚐"_s;
    return name;
}

// A plain version to compare with: an entry comes in if a leg is like its place, and no entry is like both its texts.
TEST(ExchangeImport, TakesOfTheGuideWhatTheRuleSays) {
    EXPECT_EQ(modelloLuogo(u"L'Àq(x)🚐"_s), u"L??q?x??"_s);
    std::mt19937 chance(2);
    for (int round = 0; round < 40; ++round) {
        MemoryArchive archive;
        for (int i = 0; i < 30; ++i)
            archive.put(store::Itinerari, {{u"Localita"_s, randomName(chance)}});
        for (int i = 0; i < 10; ++i)
            archive.put(store::GuidaCitta,
                        {{u"Localita"_s, randomName(chance)}, {u"Descrizione"_s, randomName(chance)}});
        MemoryArchive expected = archive;
        Importazione import(MemoryArchive::names(), {}, archive);
        ASSERT_TRUE(import.riga(u"LocalitaýDescrizioneý"));
        int refusals = 0;
        for (int i = 0; i < 150; ++i) {
            const QString place = Trim(randomName(chance).remove(u'\t'));
            const QString description = Trim(randomName(chance).remove(u'\t'));
            ASSERT_TRUE(import.riga(QString(place + u'ý' + description + u'ý')));
            const auto likePlace = [&place](const QString& t) { return MemoryArchive::like(modelloLuogo(place), t); };
            if (std::ranges::none_of(expected.column(store::Itinerari, u"Localita"), likePlace))
                continue;
            const auto isThere = [&](const ArchivioImport::Voce& entry) {
                return likePlace(entry.localita) && MemoryArchive::like(LikeTesto(description), entry.descrizione);
            };
            if (std::ranges::any_of(expected.vociGuida(), isThere))
                ++refusals;
            else
                expected.put(store::GuidaCitta, {{u"Localita"_s, place.isEmpty() ? u" "_s : place},
                                                 {u"Descrizione"_s, description.isEmpty() ? u" "_s : description}});
        }
        EXPECT_EQ(archive.tables, expected.tables);
        EXPECT_EQ(import.contatori().vociScartate, refusals);
        EXPECT_GT(import.contatori().vociInserite, 0);
    }
}

TEST(ExchangeImport, LegsThatComeLateCountForTheGuideToo) {
    MemoryArchive archive;
    CodiciMete codes;
    ASSERT_EQ(codes.assign({}, {u"000001"_s}, 6), CodiciMete::Esito::Assegnati);
    Importazione import(MemoryArchive::names(), codes, archive);
    const std::pair<const char16_t*, int> lines[] = {
        // with the number of entries so far
        {u"LocalitaýDescrizioneý", 0}, {u"RomaýDuomoý", 0},  {u"CodiceMetaþLocalitaþ", 0},
        {u"000001þROMAþ", 0},          {u"000002þBARIþ", 0}, {u"LocalitaýDescrizioneý", 0},
        {u"RomaýDuomoý", 1},           {u"BariýDuomoý", 1},  {u"ROMAýduomoý", 1}};
    for (const auto& [line, entries] : lines) {
        ASSERT_TRUE(import.riga(line));
        EXPECT_EQ(import.contatori().vociInserite, entries) << plain(QString::fromUtf16(line));
    }
    EXPECT_EQ(import.contatori().tappeInserite, 1);
    EXPECT_EQ(import.contatori().vociScartate, 1);
}

TEST(ExchangeImport, OneCodeForTwoDestinationsIsOneCodeEach) {
    MemoryArchive archive;
    CodiciMete codes;
    ASSERT_EQ(codes.assign({}, {u"000071"_s, u"000071"_s}, 6), CodiciMete::Esito::Assegnati);
    Importazione import(MemoryArchive::names(), codes, archive);
    for (const char16_t* line : {u"CodiceMetaÿLocalitaÿ", u"000071ÿBARIÿ", u"000071ÿROMAÿ", u"000071ÿPARIGIÿ",
                                 u"CodiceMetaþLocalitaþ", u"000071þLECCEþ"})
        ASSERT_TRUE(import.riga(line));
    EXPECT_EQ(archive.column(store::MeteVanzer, u"CodiceMeta"), (QStringList{u"000071"_s, u"000001"_s}));
    EXPECT_EQ(archive.column(store::Itinerari, u"CodiceMeta"), QStringList{u"000071"_s});
}

TEST(ExchangeImport, AHeadWithoutItsKeyIsTold) {
    for (const char16_t* head : {u"Localitaÿ", u"Localitaþ", u"Descrizioneý", u"000001þ0001þ"}) {
        MemoryArchive archive;
        Importazione import(MemoryArchive::names(), {}, archive);
        EXPECT_FALSE(import.riga(head)) << plain(QString::fromUtf16(head));
    }
}

} // namespace

} // namespace vanzer
