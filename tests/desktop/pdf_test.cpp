// Texts as a PDF holds them: measured as the platform measures, found again by who searches, with all of their glyphs.
#include <random>

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QImage>
#include <QtEndian>

#include "desktop/print_face.h"
#include "desktop/print_font.h"
#include "desktop/truetype.h"
#include "printing_fixture.h"

namespace vanzer::desktop {
namespace {

using Pdf = PrintingTest;

/// Words of Latin-1 letters and signs, always the same.
QStringList someWords(int count) {
    std::mt19937 random(7); // NOLINT: the same words each time
    QStringList words;
    for (int i = 0; i < count; ++i) {
        QString word;
        for (int letter = 0; letter < 12; ++letter) {
            const auto c = static_cast<char16_t>(u' ' + random() % (0x100 - u' '));
            word += c >= 0x7F && c < 0xA1 ? QChar(u'f') : QChar(c);
        }
        words << word;
    }
    return words;
}

TEST_F(Pdf, TextsAreMeasuredAsThePlatformMeasuresThem) {
    const QStringList texts = someWords(300)
                              << QStringLiteral("AVATAR Type 11/11") << QStringLiteral("ufficio, raffinato")
                              << QStringLiteral("Tørshavn – L’Aquila") << QStringLiteral("Θεσσαλονίκη")
                              << QStringLiteral("Città e 東京") << QStringLiteral("e\u0301te\u0301") << QString(u' ')
                              << QString();
    for (const char16_t* family : {u"Agency FB", u"Times new roman"}) {
        for (const auto& [bold, italic] : {std::pair{false, false}, std::pair{true, false}, std::pair{true, true}}) {
            const QFont font =
                largeFont({.face = typefaceFor(QString::fromUtf16(family)), .bold = bold, .italic = italic});
            const PrintFace face(font);
            const QFontMetricsF platform(font);
            for (const QString& text : texts)
                EXPECT_NEAR(face.width(text), platform.horizontalAdvance(text), 0.1) << text.toStdString();
            EXPECT_TRUE(face.byPairs(u"Luogo numero 00047")) << "quickly";
        }
    }
}

TEST_F(Pdf, TextsAreFoundAgain) {
    QStringList texts{QStringLiteral("ufficio"),     QStringLiteral("Città"),           QStringLiteral("(a\\b)"),
                      QStringLiteral("Θεσσαλονίκη"), QStringLiteral("Санкт-Петербург"), QStringLiteral("Żółć–Łódź")};
    // Glyphs of many numbers, among them those whose bytes mean something within a text.
    for (char16_t first = u'!'; first <= 0x161; first += 32) {
        QString row;
        for (char16_t c = first; c < first + 32; ++c) {
            if (QChar(c).isLetterOrNumber() || QChar(c).isPunct())
                row += QChar(c);
        }
        if (!row.isEmpty())
            texts << row;
    }
    files.answers << inFolder("parole.pdf");
    printer.setFontName(QStringLiteral("Times new roman"));
    for (qsizetype i = 0; i < texts.size(); ++i)
        printer.text({10, 10 + 10.0 * static_cast<double>(i)}, texts[i]);
    printer.endDoc();
    const QStringList found = textOfPdf(inFolder("parole.pdf")).split(u'\n');
    for (const QString& text : texts)
        EXPECT_TRUE(std::ranges::any_of(found, [&](const QString& line) { return line.trimmed() == text; }))
            << text.toStdString();
}

TEST_F(Pdf, ALetterThatNoFontHasLeavesTheFileWhole) {
    files.answers << inFolder("ignota.pdf");
    printer.text({20, 20}, QStringLiteral("Ignota: \uE9C3 \U0010FFF0 e poi"));
    printer.text({20, 30}, QStringLiteral("Nota"));
    printer.endDoc();
    const std::map<QString, Word> words = wordsOf(inFolder("ignota.pdf"));
    for (const char16_t* word : {u"Ignota:", u"poi", u"Nota"})
        EXPECT_TRUE(words.contains(QString::fromUtf16(word))) << QString::fromUtf16(word).toStdString();
}

/// A family whose outlines are not of TrueType's kind; empty if none is installed.
QString otherOutlines() {
    for (const QString& family : QFontDatabase::families()) {
        const QRawFont raw = QRawFont::fromFont(QFont(family));
        if (raw.familyName() == family && raw.fontTable("glyf").isEmpty() && !raw.fontTable("CFF ").isEmpty())
            return family;
    }
    return {};
}

TEST_F(Pdf, GlyphsThatCannotBeEmbeddedAreDrawn) {
    const QString family = otherOutlines();
    if (family.isEmpty())
        GTEST_SKIP() << "only TrueType fonts here";
    files.answers << inFolder("contorni.pdf");
    printer.setFontName(family);
    printer.setFontSize(48);
    const QString text = QStringLiteral("HHH");
    const double width = printer.textWidth(text);
    printer.text({20, 20}, text);
    printer.text({20 + width + 10, 20}, QStringLiteral("."));
    printer.endDoc();
    const QImage sheet = rendered("contorni", 100);
    const double perMm = sheet.height() / sheetSize.height();
    const auto inked = [&](QRectF mm) {
        int dark = 0;
        const QRect area(qRound(mm.x() * perMm), qRound(mm.y() * perMm), qRound(mm.width() * perMm),
                         qRound(mm.height() * perMm));
        for (int y = area.top(); y < area.bottom(); ++y) {
            for (int x = area.left(); x < area.right(); ++x)
                dark += sheet.pixelColor(x, y).lightness() < 128 ? 1 : 0;
        }
        return static_cast<double>(dark) / (area.width() * area.height());
    };
    const double height = printer.textHeight(text);
    for (int letter = 0; letter < 3; ++letter)
        EXPECT_GT(inked({20 + letter * width / 3, 20, width / 3, height}), 0.1) << letter;
    EXPECT_EQ(inked({20 + width + 1, 20, 8, height}), 0) << "beside it";
    EXPECT_EQ(inked({20, 20 + height, width, 10}), 0) << "below it";
    EXPECT_EQ(inked({20, 10, width, 10}), 0) << "above it";
}

template<typename T> QByteArray bytesOf(std::initializer_list<T> values) {
    QByteArray bytes;
    for (const T value : values) {
        bytes.resize(bytes.size() + qsizetype{sizeof(T)});
        qToBigEndian(value, bytes.data() + bytes.size() - qsizetype{sizeof(T)});
    }
    return bytes;
}

QByteArray simpleGlyph(quint16 mark) {
    return bytesOf<quint16>({1, 0, 0, 0, 0, mark});
}

/// A glyph of two others; the first one's place takes words, the second one's bytes and a scale.
QByteArray composedGlyph(quint16 first, quint16 second) {
    return bytesOf<quint16>({0xFFFF, 0, 0, 0, 0, 0x21, first, 0, 0, 0x08, second, 0, 0x4000});
}

/// A font of these glyphs.
OutlineTables tablesOf(const std::vector<QByteArray>& glyphs, bool longOffsets) {
    OutlineTables tables;
    tables.head = QByteArray(54, '\0');
    tables.maxp = bytesOf<quint16>({0, 1, static_cast<quint16>(glyphs.size())});
    tables.hhea = QByteArray(36, '\0');
    tables.hmtx = QByteArray(4, '\0');
    tables.head[51] = longOffsets ? 1 : 0;
    const auto offset = [&] {
        const auto at = static_cast<quint32>(tables.glyf.size());
        tables.loca += longOffsets ? bytesOf<quint32>({at}) : bytesOf<quint16>({static_cast<quint16>(at / 2)});
    };
    for (const QByteArray& glyph : glyphs) {
        offset();
        tables.glyf += glyph;
    }
    offset();
    return tables;
}

QByteArray tableOf(const QByteArray& font, const char* name) {
    const qsizetype entry = font.indexOf(name);
    const auto word = [&](qsizetype at) { return qFromBigEndian<quint32>(font.constData() + entry + at); };
    return entry < 0 ? QByteArray() : font.mid(word(8), word(12));
}

TEST(TrueType, KeepsTheGlyphsThatAreUsedAndTheirParts) {
    const std::vector<QByteArray> glyphs{simpleGlyph(100),    simpleGlyph(101),     simpleGlyph(102),
                                         composedGlyph(1, 5), simpleGlyph(104),     composedGlyph(6, 2),
                                         QByteArray(),        composedGlyph(7, 900)};
    for (const bool longOffsets : {false, true}) {
        const OutlineTables tables = tablesOf(glyphs, longOffsets);
        ASSERT_TRUE(whole(tables));
        EXPECT_EQ(withParts(tables, {3}), (std::set<quint32>{1, 2, 3, 5, 6}));
        EXPECT_EQ(withParts(tables, {7, 950}), (std::set<quint32>{7, 900, 950})) << "a circle, and what there isn't";
        const QByteArray font = subsetOf(tables, {3});
        const QByteArray loca = tableOf(font, "loca");
        const QByteArray glyf = tableOf(font, "glyf");
        ASSERT_EQ(loca.size(), 4 * 9);
        for (qsizetype i = 0; i < 8; ++i) {
            const auto from = qFromBigEndian<quint32>(loca.constData() + 4 * i);
            const auto to = qFromBigEndian<quint32>(loca.constData() + 4 * i + 4);
            const QByteArray& before = glyphs[static_cast<std::size_t>(i)];
            const bool kept = i != 4 && i != 7;
            EXPECT_EQ(glyf.mid(from, to - from).left(before.size()), kept ? before : QByteArray()) << i;
        }
        quint32 sum = 0;
        for (qsizetype i = 0; i + 4 <= font.size(); i += 4)
            sum += qFromBigEndian<quint32>(font.constData() + i);
        EXPECT_EQ(sum, 0xB1B0AFBA) << "of the whole file";
        OutlineTables cutOff = tables;
        cutOff.loca.chop(1);
        EXPECT_FALSE(whole(cutOff));
        cutOff = tables;
        cutOff.glyf.truncate(40); // within a glyph
        EXPECT_FALSE(subsetOf(cutOff, {1, 2, 3, 4, 5, 6, 7}).isEmpty());
    }
    EXPECT_FALSE(whole({}));
}

} // namespace
} // namespace vanzer::desktop
