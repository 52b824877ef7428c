// The exchange file: its lines, the codes and places of an import, and what an import takes.
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
    const struct {
        QByteArray bytes;
        QStringList lines;
    } cases[] = {
        {"", {}},
        {"a\r\nb\r\n", {u"a"_s, u"b"_s}},
        {"a\nb", {u"a"_s, u"b"_s}},
        {"a\rb\r", {u"a"_s, u"b"_s}},
        {"a\rb\n", {u"a\rb"_s}},
        {"a\r\r\nb\r\r\n", {u"a"_s, u"b"_s}},
        {"a\n\nb\n", {u"a"_s, QString(), u"b"_s}},
        {"citt\xe0\n", {u"città"_s}},
        {"citt\xc3\xa0\n", {u"città"_s}},
        {"\xef\xbb\xbf"
         "citt\xc3\xa0\n",
         {u"città"_s}},
        {"\xc3\xa0\n\xe0\n", {u"Ã\u00a0"_s, u"à"_s}},
        {"a\xc3", {u"aÃ"_s}},
    };
    for (const auto& c : cases) {
        RigheTesto lines(c.bytes);
        QStringList read;
        while (lines.prossima())
            read += lines.riga().toString();
        EXPECT_EQ(read, c.lines) << c.bytes.toStdString();
        EXPECT_EQ(lines.numero(), c.lines.size());
    }
}

TEST(CodePage, TellsWhichLettersItReplaces) {
    using Letters = std::vector<LetteraSostituita>;
    const struct {
        QString text;
        Letters letters;
    } cases[] = {
        {u"Forlì – «L'Œuvre» 5 €"_s, {}},
        {u"e\u0301"_s, {}},
        {u"ŁÓDŹ Łask"_s, {{u"Ł"_s, u'L'}, {u"Ź"_s, u'Z'}}},
        {u"Αθήνα"_s, {{u"Α"_s, u'?'}, {u"θ"_s, u'?'}, {u"ή"_s, u'?'}, {u"ν"_s, u'?'}, {u"α"_s, u'?'}}},
        {u"sosta 🚐"_s, {{u"🚐"_s, u'?'}}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(lettereSostituite(c.text), c.letters) << plain(c.text);
}

TEST(ExchangeLine, BelongsToTheLowestSectionWhoseSeparatorItHolds) {
    const struct {
        const char16_t* line;
        int before;
        int section;
    } cases[] = {{u"aÿ", 99, 1},  {u"aþ", 1, 2},  {u"aý", 2, 3}, {u"aýbþcÿ", 3, 1},
                 {u"aýbþ", 3, 2}, {u"abc", 2, 2}, {u"", 99, 99}, {u"Ÿ Þ Ý", 3, 3}};
    for (const auto& c : cases)
        EXPECT_EQ(sezioneDellaRiga(c.line, c.before), c.section) << plain(QString::fromUtf16(c.line));
}

/// The texts of fields A, B and C on a record line, behind a head line.
QStringList read(const QString& head, const QString& record) {
    LettoreIei reader({QStringList(), {u"A"_s, u"B"_s, u"C"_s}, QStringList(), QStringList()});
    EXPECT_EQ(reader.legge(head), LettoreIei::Riga::Testa);
    EXPECT_EQ(reader.legge(record), LettoreIei::Riga::Record);
    return {reader.valore(0), reader.valore(1), reader.valore(2)};
}

TEST(ExchangeLine, FieldsFindTheirColumnsByName) {
    const QString wide = u"xÿ"_s.repeated(98) + u"Bÿ"_s;
    const struct {
        QString head;
        QString record;
        QStringList fields;
    } cases[] = {
        {u"AÿBÿCÿ"_s, u"1ÿ2ÿ3ÿ"_s, {u"1"_s, u"2"_s, u"3"_s}},
        {u"cÿ aÿbÿ"_s, u" 1 ÿ2ÿ3"_s, {u"2"_s, u"3"_s, u"1"_s}},
        {u"AÿXÿCÿ"_s, u"1ÿ2ÿ3ÿ"_s, {u"1"_s, u" "_s, u"3"_s}},
        {u"AÿAÿBÿ"_s, u"1ÿ2ÿ3ÿ"_s, {u"1"_s, u"3"_s, u" "_s}},
        {u"AÿBÿCÿ"_s, u"1ÿ"_s, {u"1"_s, u" "_s, u" "_s}},
        {u"AÿBÿCÿ"_s, u"1ÿÿ3ÿ4ÿ5ÿ"_s, {u"1"_s, u" "_s, u"3"_s}},
        {u"AÿBÿCÿ"_s, u"\"1\"ÿ\u0001 2\u0007\tÿ3\r"_s, {u"1"_s, u"2\t"_s, u"3"_s}},
        {u"AÿBÿCÿ"_s, u"senza separatore"_s, {u"senza separatore"_s, u" "_s, u" "_s}},
        {wide, u"yÿ"_s.repeated(98) + u"2ÿ"_s, {u" "_s, u"2"_s, u" "_s}},
        {u"xÿ"_s + wide, u"yÿ"_s.repeated(99) + u"2ÿ"_s, {u" "_s, u" "_s, u" "_s}}, // the hundredth has no number
    };
    for (const auto& c : cases)
        EXPECT_EQ(read(c.head, c.record), c.fields) << plain(c.head) << " | " << plain(c.record);
    const QString million = u"1"_s.repeated(1'000'000);
    EXPECT_EQ(read(u"AÿBÿCÿ"_s, million + u"ÿ"_s.repeated(1'000'000)), QStringList({million, u" "_s, u" "_s}));
}

TEST(ExchangeLine, AHeadIsTheFirstLineBehindAnotherSection) {
    LettoreIei reader(MemoryArchive::names());
    using enum LettoreIei::Riga;
    const struct {
        const char16_t* line;
        LettoreIei::Riga kind;
    } lines[] = {{u"niente", Estranea},   {u"CodiceMetaÿ", Testa}, {u"000001ÿ", Record}, {u"", Record},
                 {u"CodiceMetaþ", Testa}, {u"000001þ", Record},    {u"Romaý", Testa},    {u"CodiceMetaÿ", Testa}};
    for (const auto& [line, kind] : lines)
        EXPECT_EQ(reader.legge(line), kind) << plain(QString::fromUtf16(line));
}

TEST(ExchangeLine, IsWrittenTrimmedInTheCodePage) {
    ScrittoreIei file;
    file.testa(1, {u"CodiceMeta"_s, u"Localita"_s});
    for (const QString& text : {u"000001"_s, u" FORLÌ "_s, u" "_s, u"Łódź"_s, QString(), u"Łódź "_s})
        file.testo(1, text);
    file.fineRiga();
    EXPECT_EQ(file.contenuto(), "CodiceMeta\xffLocalita\xff\r\n000001\xff"
                                "FORL\xcc\xff\xffL\xf3"
                                "dz\xff\xffL\xf3"
                                "dz\xff\r\n");
    ASSERT_EQ(file.sostituiti().size(), 1U);
    EXPECT_EQ(file.sostituiti()[0].testo, u"Łódź"_s);
}

TEST(RouteList, CountersBeyondAllNumbersStayAtTheGreatest) {
    constexpr int most = 2'147'483'647;
    const PercorsoImportato route =
        leggePacchetto("Riepilogo\n. Località\tDirezione\tDistanza\tTempo\tPosizione opposta\n" + QByteArray(150, '-') +
                       "\nASTI\t\t\t\t12 KM\nALBA\t\t\t\t99999999999 KM\n"
                       "BRA\t\t\t\t5 KM\nACQUI\t\t\t\t4 KM\n");
    std::vector<int> km;
    for (const TappaImportata& leg : route.tappe)
        km.insert(km.end(), {leg.km, leg.kmProgressivo});
    EXPECT_EQ(km, (std::vector<int>{12, 12, most - 12, most}));
}

TEST(ExchangeCodes, AreKeptWhenFreeElseCountedOn) {
    const struct {
        QStringList stored;
        QStringList chosen;
        QStringList fresh; ///< empty: it can't be done
    } cases[] = {
        {{}, {u"000005"_s, u"000001"_s}, {u"000005"_s, u"000001"_s}},
        {{u"000001"_s, u"000004"_s}, {u"000900"_s}, {u"000900"_s}},
        {{u"000001"_s, u"000004"_s}, {u"000004"_s, u"000001"_s}, {u"000005"_s, u"000006"_s}},
        {{u"000001"_s}, {u"000001"_s, u"000002"_s}, {u"000003"_s, u"000002"_s}}, // another one keeps 2
        {{u"000001"_s, u"999999"_s}, {u"000001"_s}, {u"000000"_s}},              // the digits begin anew
        {{u"000001"_s, u"AAAAAA"_s}, {u"aaaaaa"_s}, {u"000002"_s}},
        {{u"000012"_s}, {u"1"_s}, {u"3"_s}},                          // a part of a stored code is in use as well
        {{}, {u"000005"_s, u"000005"_s}, {u"000005"_s, u"000001"_s}}, // a damaged file: each has its own all the same
        {{u"000005"_s}, {u"000005"_s, u"000005"_s}, {u"000006"_s, u"000007"_s}},
        {{}, {u"1234567"_s}, {}},
        {{u"0"_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s, u"9"_s}, {u"3"_s}, {}},
    };
    for (const auto& c : cases) {
        CodiciMete codes;
        const bool assigned = codes.assegna(c.stored, c.chosen, 6) == CodiciMete::Esito::Assegnati;
        ASSERT_EQ(assigned, !c.fresh.isEmpty()) << plain(c.chosen.join(u' '));
        for (qsizetype i = 0; i < c.fresh.size(); ++i) {
            EXPECT_EQ(*codes.perMeta(c.chosen[i]), c.fresh[i]) << plain(c.chosen.join(u' '));
            codes.accetta(c.chosen[i]);
        }
    }
    CodiciMete codes;
    static_cast<void>(codes.assegna({}, {u"000001"_s}, 6));
    EXPECT_EQ(codes.perMeta(u"000002"), nullptr);
    EXPECT_EQ(codes.perMeta(u""), nullptr);
    codes.rifiuta(u"000001");
    EXPECT_EQ(codes.perMeta(u"000001"), nullptr);
    EXPECT_EQ(codes.perTappe(u"000001"), nullptr);
}

/// Names over few letters, so that many of them meet; among them what only looks like a letter, and what folds to one.
QString randomName(std::mt19937& chance) {
    static const QString letters = u"aAbBkKsS è'(?*K\u017fÈ\t"_s;
    QString name;
    for (auto length = chance() % 6; length > 0; --length)
        name += letters[static_cast<qsizetype>(chance() % static_cast<unsigned>(letters.size()))];
    if (chance() % 10 == 0)
        name += u"🚐"_s;
    return name;
}

TEST(PlacePatterns, FindWhatTheQueryWouldFind) {
    EXPECT_EQ(modelloLuogo(u"L'Àq(x)🚐"_s), u"L??q?x??"_s);
    std::mt19937 chance(1);
    for (int round = 0; round < 30; ++round) {
        LuoghiPerModello index;
        std::vector<QString> texts;
        for (int i = 0; i < 200; ++i) {
            texts.push_back(randomName(chance));
            index.aggiunge(texts.back());
            const QString place = randomName(chance);
            const QString pattern = modelloLuogo(place);
            const bool literally = std::ranges::any_of(
                texts, [&pattern](const QString& text) { return MemoryArchive::like(pattern, text); });
            ASSERT_EQ(index.trova(place), literally) << plain(place) << " among " << texts.size();
        }
    }
}

/// The rule for an entry of the guide, word by word.
bool wanted(const MemoryArchive& archive, const QString& place, const QString& description, bool& refused) {
    const QString pattern = modelloLuogo(place);
    const auto visited = [&pattern](const QString& leg) { return MemoryArchive::like(pattern, leg); };
    refused = false;
    if (std::ranges::none_of(archive.column(store::Itinerari, u"Localita"), visited))
        return false;
    for (const MemoryArchive::Record& entry : archive.tables[store::GuidaCitta]) {
        refused =
            refused || (MemoryArchive::like(pattern, MemoryArchive::text(store::GuidaCitta, entry, u"Localita")) &&
                        MemoryArchive::like(LikeTesto(description),
                                            MemoryArchive::text(store::GuidaCitta, entry, u"Descrizione")));
    }
    return !refused;
}

TEST(ExchangeImport, TakesOfTheGuideWhatTheRuleSays) {
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
            bool refused = false;
            if (wanted(expected, place, description, refused))
                expected.put(store::GuidaCitta, {{u"Localita"_s, place.isEmpty() ? u" "_s : place},
                                                 {u"Descrizione"_s, description.isEmpty() ? u" "_s : description}});
            refusals += static_cast<int>(refused);
        }
        EXPECT_EQ(archive.column(store::GuidaCitta, u"Localita"), expected.column(store::GuidaCitta, u"Localita"));
        EXPECT_EQ(archive.column(store::GuidaCitta, u"Descrizione"),
                  expected.column(store::GuidaCitta, u"Descrizione"));
        EXPECT_EQ(import.contatori().vociScartate, refusals);
        EXPECT_GT(import.contatori().vociInserite, 0);
    }
}

TEST(ExchangeImport, LegsThatComeLateCountForTheGuideToo) {
    MemoryArchive archive;
    CodiciMete codes;
    ASSERT_EQ(codes.assegna({}, {u"000001"_s}, 6), CodiciMete::Esito::Assegnati);
    Importazione import(MemoryArchive::names(), codes, archive);
    const struct {
        const char16_t* line;
        int entries; ///< so far
    } lines[] = {{u"LocalitaýDescrizioneý", 0}, {u"RomaýDuomoý", 0},  {u"CodiceMetaþLocalitaþ", 0},
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
    ASSERT_EQ(codes.assegna({}, {u"000071"_s, u"000071"_s}, 6), CodiciMete::Esito::Assegnati);
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
