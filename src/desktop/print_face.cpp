#include "desktop/print_face.h"

#include <cmath>
#include <limits>

#include <QFontMetricsF>
#include <QTextLayout>

namespace vanzer::desktop {

namespace {

// Beside the figures of the pairs.
constexpr qint16 notLearnt = std::numeric_limits<qint16>::min();
constexpr qint16 notTold = notLearnt + 1;

constexpr qsizetype shapedTexts = 4096; ///< that are kept; then all of them go

int inParts(double pixels) {
    return static_cast<int>(std::lround(pixels * PrintFace::parts));
}

/// Letters and signs that stand for themselves; no breaks, no marks that are not seen.
bool plain(char16_t c) {
    constexpr char16_t softHyphen = 0xAD;
    return (c >= u' ' && c < 0x7F) || (c > 0xA0 && c < PrintFace::letters && c != softHyphen);
}

} // namespace

PrintFace::PrintFace(const QFont& large)
    : font_(large), raw_(QRawFont::fromFont(large)), ascent_(QFontMetricsF(large).ascent()),
      height_(QFontMetricsF(large).height()), kerning_(letters * letters, notTold) {
    for (char16_t c = 0; c < letters; ++c) {
        const QList<quint32> glyphs = raw_.glyphIndexesForString(QChar(c));
        const QList<QPointF> advances = raw_.advancesForGlyphIndexes(glyphs);
        if (!plain(c) || glyphs.size() != 1 || glyphs[0] == 0 || advances.size() != 1)
            continue;
        letters_[c] = {glyphs[0], inParts(advances[0].x())};
    }
    for (std::size_t first = 0; first < letters; ++first) {
        for (std::size_t second = 0; second < letters; ++second) {
            if (letters_[first].glyph != 0 && letters_[second].glyph != 0)
                kerning_[first * letters + second] = notLearnt;
        }
    }
}

PrintFace::Shaped PrintFace::shape(const QString& text) const {
    QTextOption oneLine;
    oneLine.setWrapMode(QTextOption::NoWrap);
    oneLine.setTextDirection(Qt::LeftToRight);
    QTextLayout layout(text, font_);
    layout.setTextOption(oneLine);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    if (!line.isValid())
        return {};
    QList<QGlyphRun> runs = line.glyphRuns();
    for (QGlyphRun& run : runs) {
        QList<QPointF> places = run.positions();
        for (QPointF& place : places)
            place.ry() -= line.ascent();
        run.setPositions(places);
    }
    return {line.horizontalAdvance(), runs};
}

/// Two glyphs of this face side by side, the letters' own: no ligature, no mark, nothing from another font.
qint16 PrintFace::learn(QChar first, QChar second) const {
    const Shaped pair = shape(QString(first) + second);
    const Letter& a = letter(first);
    const Letter& b = letter(second);
    if (pair.runs.size() != 1 || !(pair.runs[0].rawFont() == raw_) ||
        pair.runs[0].glyphIndexes() != QList<quint32>{a.glyph, b.glyph})
        return notTold;
    const QList<QPointF> places = pair.runs[0].positions();
    const int kerning = inParts(places[1].x() - places[0].x()) - a.advance;
    const bool told = places[0].y() == places[1].y() && std::abs(kerning) < std::numeric_limits<qint16>::max() &&
                      inParts(pair.width) == a.advance + kerning + b.advance;
    return told ? static_cast<qint16>(kerning) : notTold;
}

std::optional<int> PrintFace::byPairs(QStringView text) const {
    int width = 0;
    qint16* row = nullptr; // the pairs that begin with the letter before
    QChar before;
    for (const QChar c : text) {
        if (c.unicode() >= letters || letter(c).glyph == 0)
            return std::nullopt;
        if (row != nullptr) {
            qint16& kerning = row[c.unicode()];
            if (kerning == notLearnt)
                kerning = learn(before, c);
            if (kerning == notTold)
                return std::nullopt;
            width += kerning;
        }
        width += letter(c).advance;
        row = &kerning_[c.unicode() * letters];
        before = c;
    }
    return width;
}

const PrintFace::Shaped& PrintFace::wholly(const QString& text) const {
    if (const auto known = shaped_.constFind(text); known != shaped_.constEnd())
        return *known;
    if (shaped_.size() >= shapedTexts)
        shaped_.clear();
    // A text is one line: breaks are drawn as blanks, and where a word could be parted nothing is seen.
    QString line = QString(text).remove(QChar(QChar::SoftHyphen));
    for (QChar& c : line) {
        if (c < u' ' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            c = u' ';
    }
    return *shaped_.insert(text, shape(line));
}

double PrintFace::width(const QString& text) const {
    if (const std::optional<int> width = byPairs(text))
        return static_cast<double>(*width) / parts;
    return wholly(text).width;
}

const QList<QGlyphRun>& PrintFace::shaped(const QString& text) const {
    return wholly(text).runs;
}

} // namespace vanzer::desktop
