// SPDX-License-Identifier: MIT
// The logbook's trip: its arguments, its file name, and the pages that it needs.
#include <algorithm>

#include <gtest/gtest.h>

#include "core/code_page.h"
#include "scribolo/logbook.h"
#include "scribolo/plan.h"

namespace vanzer::scribolo {

using namespace Qt::StringLiterals;

namespace {

/// "NAME|first day|number of days", or the text of the problem.
std::string told(const QString& word) {
    try {
        const Trip trip = tripOf(word);
        return (trip.name + u'|' + trip.start.toString(Qt::ISODate) + u'|' + QString::number(trip.days)).toStdString();
    } catch (const Problem& problem) {
        return problem.what();
    }
}

Trip trip(int days) {
    return {.name = u"Elba"_s, .start = {2026, 6, 1}, .end = QDate(2026, 6, 1).addDays(days - 1), .days = days};
}

} // namespace

TEST(Scribolo, AWordTellsATripOrWhatItLacks) {
    const std::pair<const char16_t*, const char*> cases[] = {
        // the word, and a part of the expected result
        {u"Elba,01/06/2026,01/06/2026", "Elba|2026-06-01|1"},
        {u"Elba,01/01/2025,02/01/2025,01/06/2026,03/06/2026", "Elba,01/01/2025,02/01/2025|2026-06-01|3"},
        {u"  Łódź \n e \u0007ritorno , 28/02/2028 , 01/03/2028 ", "Łódź e ritorno|2028-02-28|3"},
        {u"Un anno,01/01/2028,31/12/2028", "Un anno|2028-01-01|366"},
        {u"Elba,01/06/2026", "Il viaggio va indicato"},
        {u" ,01/06/2026,03/06/2026", "Manca il nome"},
        {u"Elba,31/06/2026,03/07/2026", "\"31/06/2026\" non è una data"},
        {u"Elba,//,//", "\"//\" non è una data"},
        {u"Elba,03/06/2026,02/06/2026", "finisce prima di cominciare"},
        {u"Elba,01/01/2027,02/01/2028", "dura 367 giorni"},
    };
    for (const auto& c : cases) {
        const std::string text = told(QString::fromUtf16(c.first));
        EXPECT_TRUE(text.find(c.second) != std::string::npos) << text;
    }
}

TEST(Scribolo, TheCommandFileHoldsTheWordBehindTheProgram) {
    const std::pair<const char16_t*, const char16_t*> cases[] = {
        {u"C:\\Vanzer\\Scribolo.exe Elba,01/06/2026,03/06/2026\r\n", u"Elba,01/06/2026,03/06/2026"},
        {u"/home/anna/I miei viaggi\\Scribolo.exe L'Elba, 2 volte,a,b", u"L'Elba, 2 volte,a,b"},
        {u"D:\\Scribolo.exe vecchio\\Scribolo.exe Elba\r\nC:\\Scribolo.exe Giglio\r\n", u"Elba"},
        {u"C:\\SCRIBOLO.EXE Forlì – €,a,b\n", u"Forlì – €,a,b"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(wordOfCommand(toCodePage(QString::fromUtf16(c.first))), QString::fromUtf16(c.second));
    for (const char* file : {"", "\r\n", "Elba,01/06/2026,03/06/2026\r\n", "\r\nC:\\Scribolo.exe Elba\r\n"})
        EXPECT_THROW(static_cast<void>(wordOfCommand(file)), Problem) << file;
}

TEST(Scribolo, EveryNameCanBeAFile) {
    EXPECT_EQ(fileName(u"Elba, Łódź e ritorno"_s), u"Diario di bordo - Elba, Łódź e ritorno.pdf");
    EXPECT_EQ(fileName(u"A/B\\C:D*E?F\"G<H>I|J\u0001."_s), u"Diario di bordo - A_B_C_D_E_F_G_H_I_J_..pdf");
    EXPECT_EQ(fileName(QString(300, u'è')).toUtf8().size(), 240);
    const QString campers = fileName(u"🚐"_s.repeated(100));
    EXPECT_LE(campers.toUtf8().size(), 240);
    EXPECT_TRUE(campers.isValidUtf16()) << "no character is cut in two";
}

TEST(Scribolo, EveryDayHasAPageAndOneRowOfTheSummary) {
    const std::pair<int, const char*> cases[] = {{1, "1"}, {27, "1-27"}, {28, "1-27 28"}, {55, "1-27 28-54 55"}};
    for (const auto& [days, summaries] : cases) {
        QStringList expected{"C"};
        for (int day = 1; day <= days; ++day)
            expected += QString("D%1").arg(day);
        expected += QString("S%1").arg(summaries).replace(" ", " S");
        QStringList pages;
        for (const auto& [kind, first, last] : plan(trip(days)))
            pages += QString(QChar(u"CDS"[static_cast<int>(kind)])) + (first > 0 ? QString::number(first) : "") +
                     (last > first ? QString("-%1").arg(last) : "");
        EXPECT_EQ(pages.join(' '), expected.join(' '));
    }
}

TEST(Scribolo, WhatIsCarriedOverHasARowOfItsOwn) {
    const std::vector<Page> pages = plan(trip(30));
    paper::Fonts fonts;
    const paper::Page drawn = drawnPage(trip(30), pages, pages.size() - 1, fonts);
    double above = 0;
    for (const QString& name : {u"Riporto"_s, u"28"_s, u"29"_s, u"30"_s, u"Totale del viaggio"_s}) {
        const auto row = std::ranges::find_if(drawn, [&name](const paper::Drawing& drawing) {
            const auto* const text = std::get_if<paper::DrawnText>(&drawing);
            return text != nullptr && text->text == name;
        });
        ASSERT_NE(row, drawn.end()) << name.toStdString();
        EXPECT_GT(std::get<paper::DrawnText>(*row).base.y, above + 3) << name.toStdString();
        above = std::get<paper::DrawnText>(*row).base.y;
    }
}

} // namespace vanzer::scribolo
