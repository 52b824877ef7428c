// SPDX-License-Identifier: MIT
// PDF pages as other programs see them: their texts, properties and picture.
#include <algorithm>
#include <array>

#include <QBuffer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "paper/pdf.h"
#include "paper/picture.h"

namespace vanzer::paper {
namespace {

using namespace Qt::StringLiterals;

const Font serif{.family = u"Liberation Serif"_s};

QByteArray pdfOf(const std::vector<Page>& pages) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    Fonts fonts;
    Pdf pdf(bytes, fonts,
            {.title = u"Città – Łódź"_s, .creator = u"Vanzer"_s, .made = {{2026, 6, 1}, {8, 30}, Qt::UTC}});
    for (const Page& page : pages)
        EXPECT_TRUE(pdf.add(page));
    EXPECT_TRUE(pdf.finish());
    return bytes.data();
}

/// What another program prints about a PDF.
QStringList asked(const QString& program, const QStringList& options, const QByteArray& pdf) {
    QProcess process;
    process.start(program, options);
    process.write(pdf);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0) << program.toStdString();
    EXPECT_EQ(process.readAllStandardError().toStdString(), "");
    return QString::fromUtf8(process.readAllStandardOutput()).split(u'\n');
}

TEST(Paper, WhatNoFontHasAndNoDocumentHoldsLeavesTheFileWhole) {
    const QString strange[] = {u"\uE9C3 \U0010FFF0"_s,
                               QString(QChar(0xD83D)),
                               QString(QChar(0xFFFF)),
                               u"a\u0301\u0302\u200Db"_s,
                               u"due\nrighe"_s,
                               u"مدينة 12 (nord)"_s,
                               u"Θεσσαλονίκη (a\\b) Żółć–Łódź Երևան"_s,
                               QString(),
                               u" "_s};
    Page page;
    double y = 20;
    for (const QString& text : strange)
        page.emplace_back(DrawnText{{20, y += 10}, u"prima "_s + text + u" poi"_s, serif});
    const QStringList found =
        asked(u"pdftotext"_s, {u"-"_s, u"-"_s}, pdfOf({page, {DrawnText{{20, 20}, u"Nota"_s, serif}}}));
    EXPECT_EQ(found.join(u' ').count(u"poi"), std::size(strange));
    EXPECT_TRUE(found.contains(u"due righe") || found.join(u' ').contains(u"prima due righe poi"));
    EXPECT_TRUE(found.join(u' ').contains(u"12 (nord)")) << "figures run forward: " << found.join(u' ').toStdString();
    EXPECT_TRUE(found.join(u' ').contains(u"Nota"));
    EXPECT_TRUE(found.contains(u"prima Θεσσαλονίκη (a\\b) Żółć–Łódź Երևան poi"_s)) << found.join(u'\n').toStdString();
}

TEST(Paper, ADocumentTellsItsTitleItsLanguageAndItsTime) {
    const QByteArray pdf = pdfOf({{DrawnText{{20, 20}, u"Ciao"_s, serif}, DrawnSign{{50, 50}, {20, 20}}}, {}});
    const QStringList about = asked(u"pdfinfo"_s, {u"-"_s}, pdf);
    for (const QString& line :
         {u"Title:           Città – Łódź"_s, u"Creator:         Vanzer"_s, u"Pages:           2"_s})
        EXPECT_TRUE(about.contains(line)) << line.toStdString() << " in " << about.join(u'\n').toStdString();
    EXPECT_TRUE(pdf.contains("/Lang (it-IT)"));
    EXPECT_TRUE(pdf.contains("20260601083000"));
    EXPECT_EQ(pdf, pdfOf({{DrawnText{{20, 20}, u"Ciao"_s, serif}, DrawnSign{{50, 50}, {20, 20}}}, {}})) << "always";
}

TEST(Paper, APictureShowsItsPartOfThePage) {
    const Page page{DrawnBox{{40, 10}, {60, 20}, 0.1, 0xc0ffc0U},
                    DrawnText{{40, 30}, u"HHH"_s, {.family = serif.family, .points = 40}},
                    DrawnPath{Path::circle({50, 50}, 5), 0xff0000U},
                    DrawnPath{Path().moveTo({40, 60}).lineTo({60, 60}), 0x0000ffU, Stroke{2, {4, 4}}},
                    DrawnLine{{40, 64}, {60, 64}, 2, 0x0000ffU}};
    constexpr int width = 200;
    constexpr int height = 260;
    std::vector<quint32> points(std::size_t{width} * height, 0xFFFFFFFFU);
    Fonts fonts;
    drawPage(page, fonts, {reinterpret_cast<unsigned char*>(points.data()), width, height, width * 4}, {100, 0}, 4);
    // position on the page in mm
    const auto seen = [&](double x, double y) {
        return points[static_cast<std::size_t>(y * 4) * width + static_cast<std::size_t>(x * 4 - 100)] & 0xFFFFFFU;
    };
    EXPECT_EQ(seen(50, 15), 0xc0ffc0U);
    EXPECT_EQ(seen(39, 15), 0xFFFFFFU);
    EXPECT_LT(seen(42, 27), 0x808080U) << "a stem";
    EXPECT_EQ(seen(50, 50), 0xff0000U);
    EXPECT_EQ(seen(50, 44), 0xFFFFFFU);
    EXPECT_EQ(seen(42, 60), 0x0000ffU);
    EXPECT_EQ(seen(46, 60), 0xFFFFFFU) << "a gap";
    EXPECT_EQ(seen(50, 60), 0x0000ffU);
    EXPECT_EQ(seen(46, 64), 0x0000ffU) << "no gap in the next line";
}

} // namespace
} // namespace vanzer::paper
