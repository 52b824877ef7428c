// SPDX-License-Identifier: MIT
// The basic values: texts, durations, dates, columns, names of places.
#include <gtest/gtest.h>

#include <cmath>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "core/code_page.h"
#include "core/columns.h"
#include "core/place_name.h"
#include "core/text.h"
#include "core/text_file.h"
#include "core/time_values.h"
#include "support/full_disk.h"

namespace vanzer {

using namespace Qt::StringLiterals;

TEST(Text, ValReadsTheLeadingNumber) {
    const std::pair<const char16_t*, double> cases[] = {{u" 1 2.5x", 12.5}, {u"-3", -3},     {u"0,75", 0},  {u"", 0},
                                                        {u"abc", 0},        {u"1.2.3", 1.2}, {u"08:30", 8}, {u"+7", 7},
                                                        {u"-", 0},          {u"1e3", 1},     {u"  009 ", 9}};
    for (const auto& [text, value] : cases)
        EXPECT_EQ(Val(text), value) << QString::fromUtf16(text).toStdString();
}

TEST(Text, NumbersPaddingAndPatterns) {
    const std::pair<QString, const char16_t*> rows[] = {
        {testoNumero(0.1f) + testoNumero(1.999997f) + testoNumero(0.75, u',') + testoNumero(0.000001),
         u"0.11.9999970,750.000001"},
        {migliaia(0) + migliaia(999.5) + migliaiaZero(0) + migliaiaZero(-1234567), u"1.0000-1.234.567"},
        {Zero(1234, 2) + Zero(5, 3) + Zero(u" 7 "_s, 2), u"3400507"},
        {AggStr(u"abcd"_s, 2, u"32"_s) + AggStr(u"ab"_s, 4, u"32"_s) + AntStr(u"x"_s, 3, u"5"_s), u"abab  55x"},
        {LikeTesto(u"L'Aquila (centro)"_s) + LikeTesto(u"=\\><[]\"%_*"_s), u"L?Aquila *???????%_*"},
        {PrimoMaiuscolo(u"san MÜNCHEN"_s, false), u"San MüNchen"}};
    for (const auto& [text, expected] : rows)
        EXPECT_EQ(text, expected);
}

TEST(Text, ToleranceIsLopsidedAndHoldsBothEnds) {
    EXPECT_TRUE(QuasiUguale(9, 10, 3) && QuasiUguale(13, 10, 3));
    EXPECT_FALSE(QuasiUguale(8.9f, 10, 3) || QuasiUguale(13.1f, 10, 3));
}

TEST(Durate, BothWays) {
    const struct {
        const char16_t* text;
        float unit;
        float value;
        const char16_t* back;
    } cases[] = {
        {u"01:08:30", 1000, 1850, u"01:08:30"},
        {u"08:30", 2400, 850, u"00:08:30"},
        {u"", 2400, 0, u""},
        {u"00:00:00", 2400, 0, u""},
        {u"*00:02:00", 900, 200, u"00:02:00"},
        {u"00:24:00", 2400, 2400, u"01:00:00"},
        {u"02:00:15", 900, 1825, u"02:00:15"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ghmStringa2Centesimi(QString::fromUtf16(c.text), c.unit), c.value);
        EXPECT_EQ(ghmCentesimi2Stringa(c.value, c.unit), c.back);
    }
    EXPECT_EQ(ghmCentesimi2Stringa(99.5f, 2400), u"00:00:60");
    EXPECT_EQ(ghmCentesimi2Stringa(101.0f * 2400, 2400), u"01:00:00") << "days keep two digits";
    EXPECT_EQ(ghmCentesimi2Stringa(100.0f * 2400, 2400), u"");
    EXPECT_EQ(ghmSenzaGiorni(3330, 9900), u"33:18");
}

TEST(Date, JulianDayAndBack) {
    EXPECT_EQ(Data2Giul(u"01012001"_s), 730501);
    EXPECT_EQ(Giu2Datas(730501), u"01012001");
    EXPECT_EQ(GiornoSettimana(u"01012001"_s), u"Lun");
    EXPECT_EQ(GiornoSettimana(u"1012001"_s), u"");
    // Every day from 1998 to 2047 is converted back to itself, and days are consecutive.
    float day = Data2Giul(u"01011998"_s);
    for (int year = 1998; year < 2048; ++year) {
        for (int month = 1; month <= 12; ++month) {
            for (int d = 1; d <= GiorniMese(year, month); ++d, day += 1) {
                const QString date = Gma2Data({d, month, year});
                ASSERT_EQ(Data2Giul(date), day) << date.toStdString();
                ASSERT_EQ(Giu2Datas(day), date);
            }
        }
    }
    EXPECT_EQ(Data2Data(u"05072003"_s), u"05/07/2003");
    EXPECT_EQ(DataChan(u"05072003"_s), u"20030705");
    EXPECT_EQ(Data2Giul({}), -396);
}

TEST(Date, DaysOfTheMonth) {
    EXPECT_EQ(GiorniMese(1900, 2), 28);
    EXPECT_EQ(GiorniMese(2000, 2), 29);
    EXPECT_EQ(GiorniMese(2001, 0), 31);
    EXPECT_EQ(GiorniMese(2001, 13), 28);
}

TEST(ColonneDiTesto, SplitAtTheirSeparator) {
    const std::pair<QString, QString> cases[] = {
        // the columns joined by "|"
        {u""_s, u""_s},       {u"a,b\tc,d"_s, u"a,b|c,d"_s}, {u"\"x\" , y;z"_s, u"x|y;z"_s},
        {u"a;b"_s, u"a|b"_s}, {u"a!b!"_s, u"a|b|"_s},        {u"uno\u00ffdue, tre\u00ff"_s, u"uno|due, tre|"_s}};
    for (const auto& [text, expected] : cases) {
        Colonne columns;
        columns(1) = u"old"_s;
        QString line = text;
        SeparaColonne(line, columns);
        QStringList found;
        for (int i = 1; i <= columns.numero; ++i)
            found += columns(i);
        EXPECT_EQ(found.join(u'|'), expected);
    }
    Colonne columns;
    QString many = u"x,"_s.repeated(150);
    SeparaColonne(many, columns);
    EXPECT_EQ(columns.numero, 100);
}

TEST(NomiDiLuogo, FormOfTheGuide) {
    const std::pair<QString, QString> cases[] = {{u"Roma (centro)"_s, u"Roma"_s},
                                                 {u"near Firenze"_s, u"Firenze"_s},
                                                 {u"Vicino near Roma"_s, u"near Roma"_s},
                                                 {u"CVL  Siena"_s, u" Siena"_s},
                                                 {u"near vicino Roma"_s, u"Roma"_s},
                                                 {u"PISA [Start] [End]"_s, u"PISA"_s},
                                                 {u"(solo)"_s, u""_s}};
    for (const auto& [name, filed] : cases)
        EXPECT_EQ(PulisceNomeLocalita(name), filed);
    EXPECT_EQ(RiPulisceNomeLocalita(u" PISA  [End]"_s), u"Pisa");
    EXPECT_EQ(RiPulisceNomeLocalita(u"ORTE (svincolo)"_s), u"Orte (svincolo)");
}

TEST(CodePage, GoesThereAndBack) {
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all.append(static_cast<char>(byte));
    EXPECT_EQ(toCodePage(fromCodePage(all)), all);
    EXPECT_EQ(fromCodePage("\x80\xE8\x9F"), u"€èŸ");
}

TEST(CodePage, WhatHasNoPlaceIsWrittenAsItsBaseLetter) {
    const std::pair<QString, QByteArray> cases[] = {{u"Łó, Çeş"_s, "L\xF3, \xC7"
                                                                   "es"},
                                                    {u"cafe\u0301 \u1EC7"_s, "caf\xE9 e"},
                                                    {u"Αθήνα 😀 \uFEFFa\uFEFF"_s, "????? ? ?a?"}};
    for (const auto& [text, bytes] : cases)
        EXPECT_EQ(toCodePage(text), bytes) << text.toStdString();
    EXPECT_EQ(lettereSostituite(u"ŁÓDŹ Łask"_s), (std::vector<LetteraSostituita>{{u"Ł"_s, u'L'}, {u"Ź"_s, u'Z'}}));
}

TEST(TextFile, IsWrittenWholeOrNotAtAll) {
    const QTemporaryDir directory;
    const QString path = directory.filePath(u"lista.txt"_s);
    const auto content = [&path] {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "none";
    };
    EXPECT_EQ(writeFile(path, contenutoTesto({u"Città"_s, {}})), u"");
    EXPECT_EQ(content(), "Citt\xE0\r\n\r\n");
    EXPECT_EQ(writeFile(path, contenutoTesto({})), u"");
    EXPECT_EQ(content(), "");
    ASSERT_EQ(writeFile(path, contenutoTesto({u"di prima"_s})), u"");
    ASSERT_TRUE(QDir(directory.path()).mkdir(u"cartella"_s));
    const FullDisk full(4096);
    const std::pair<QString, QString> cases[] = {{u"altrove/lista.txt"_s, u"cartella non c'è"_s},
                                                 {u"lista.txt/lista.txt"_s, u"cartella non c'è"_s},
                                                 {u"cartella"_s, u"non è permesso"_s},
                                                 {u"lista.txt"_s, u"disco è pieno"_s}};
    for (const auto& [name, why] : cases) {
        for (const qsizetype size : {5'000, 500'000}) {
            const QString reason = writeFile(directory.filePath(name), QByteArray(size, 'x'));
            EXPECT_TRUE(reason.contains(why)) << name.toStdString() << ": " << reason.toStdString();
        }
    }
    EXPECT_EQ(content(), "di prima\r\n");
    EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files), QStringList(u"lista.txt"_s)) << "nothing is left aside";
}

} // namespace vanzer
