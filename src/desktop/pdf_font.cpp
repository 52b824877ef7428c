#include "desktop/pdf_font.h"

#include <algorithm>
#include <string>

#include <QPainterPath>
#include <QtEndian>

namespace vanzer::desktop {

namespace {

quint16 wordOf(const QByteArray& table, qsizetype offset) {
    return table.size() >= offset + 2 ? qFromBigEndian<quint16>(table.constData() + offset) : quint16{0};
}

/// The platform makes a bold or slanted face out of an upright one where a family has none.
struct MadeUp {
    bool bold;
    bool italic;
};
MadeUp madeUp(const QRawFont& raw, const QFont& wanted) {
    constexpr qsizetype styleInHead = 44;
    constexpr qsizetype weightInOs2 = 4;
    constexpr qsizetype styleInOs2 = 62;
    constexpr quint16 heavy = 600;
    const quint16 style = wordOf(raw.fontTable("head"), styleInHead);
    const QByteArray os2 = raw.fontTable("OS/2");
    const bool bold = (style & 1U) != 0 || wordOf(os2, weightInOs2) >= heavy;
    const bool italic = (style & 2U) != 0 || (wordOf(os2, styleInOs2) & 1U) != 0;
    return {wanted.bold() && !bold, wanted.italic() && !italic};
}

OutlineTables tablesOf(const QRawFont& raw) {
    return {raw.fontTable("head"), raw.fontTable("maxp"), raw.fontTable("loca"),
            raw.fontTable("glyf"), raw.fontTable("hhea"), raw.fontTable("hmtx"),
            raw.fontTable("cvt "), raw.fontTable("fpgm"), raw.fontTable("prep")};
}

QByteArray decimal(double x) {
    return QByteArray::number(x, 'f', 2);
}

QByteArray hex(quint32 number) {
    return QByteArray::number(number, 16).rightJustified(4, '0');
}

QByteArray point(const QPainterPath::Element& at) {
    return QByteArray::number(qRound(at.x)) + ' ' + QByteArray::number(qRound(-at.y)) + ' ';
}

/// The outlines that the platform hands out are slanted, but not bold.
QByteArray operators(const QPainterPath& path, bool thicker) {
    constexpr int boldPen = 40;
    QByteArray code;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element at = path.elementAt(i);
        if (at.isMoveTo())
            code += point(at) + "m ";
        else if (at.isLineTo())
            code += point(at) + "l ";
        else if (at.isCurveTo() && i + 2 < path.elementCount())
            code += point(at) + point(path.elementAt(i + 1)) + point(path.elementAt(i + 2)) + "c ";
    }
    if (code.isEmpty())
        return code;
    return thicker ? QByteArray::number(boldPen) + " w " + code + 'B' : code + 'f';
}

} // namespace

PdfFont::PdfFont(const QRawFont& raw, const QFont& wanted, int number)
    : raw_(raw), number_(number), tables_(tablesOf(raw)), thicker_(madeUp(raw, wanted).bold),
      embedded_(whole(tables_) && raw.fontTable("fvar").isEmpty() && !thicker_ && !madeUp(raw, wanted).italic) {}

bool PdfFont::sameFile(const PdfFont& other) const {
    return embedded_ && other.embedded_ && tables_.head == other.tables_.head && tables_.loca == other.tables_.loca;
}

void PdfFont::use(quint32 glyph, const QString& letters) {
    if (used_.contains(glyph))
        return;
    const QList<QPointF> advances = raw_.advancesForGlyphIndexes({glyph});
    used_.insert(glyph, {advances.isEmpty() ? 0 : advances[0].x(), letters});
}

/// A letter's own glyph stands for that letter. What stands between two of them, such as a ligature, is for the letters
/// between the two.
void PdfFont::use(const QGlyphRun& run, const QString& line) {
    const QList<quint32> glyphs = run.glyphIndexes();
    if (std::ranges::all_of(glyphs, [this](quint32 glyph) { return used_.contains(glyph); }))
        return;
    const std::u32string letters = line.toStdU32String();
    const auto count = static_cast<qsizetype>(letters.size());
    const auto text = [&letters](qsizetype from, qsizetype length) {
        return QString::fromUcs4(letters.data() + from, length);
    };
    QList<quint32> own;
    for (qsizetype i = 0; i < count; ++i) {
        own << raw_.glyphIndexesForString(text(i, 1)).value(0);
        if (own.back() != 0 && glyphs.contains(own.back()))
            use(own.back(), text(i, 1));
    }
    constexpr qsizetype longestLigature = 4;
    qsizetype next = 0; // letter
    for (qsizetype g = 0; g < glyphs.size(); ++g) {
        if (const qsizetype at = own.indexOf(glyphs[g], next); at >= 0) {
            next = at + 1;
            continue;
        }
        const qsizetype behind = g + 1 < glyphs.size() ? own.indexOf(glyphs[g + 1], next) : count;
        const bool told = glyphs[g] != 0 && !run.isRightToLeft() && behind >= 0;
        const qsizetype length = told ? std::min(behind - next, longestLigature) : 0;
        use(glyphs[g], text(next, length));
        next += length;
    }
}

const QByteArray& PdfFont::outline(quint32 glyph) {
    const auto known = outlines_.constFind(glyph);
    return known != outlines_.constEnd() ? *known
                                         : *outlines_.insert(glyph, operators(raw_.pathForGlyph(glyph), thicker_));
}

std::set<quint32> PdfFont::glyphs() const {
    return {used_.keyBegin(), used_.keyEnd()};
}

/// A subset is told by six letters in front.
QByteArray PdfFont::name() const {
    QByteArray family;
    for (const QChar c : raw_.familyName() + u'-' + raw_.styleName()) {
        if (c == u'-' || (c < QChar(0x80) && c.isLetterOrNumber()))
            family += c.toLatin1();
    }
    QByteArray mark = "VANZAA";
    mark[4] = static_cast<char>('A' + number_ / 26 % 26);
    mark[5] = static_cast<char>('A' + number_ % 26);
    return mark + '+' + family;
}

QByteArray PdfFont::widths() const {
    QByteArray list;
    for (const quint32 glyph : glyphs())
        list += QByteArray::number(glyph) + '[' + decimal(advance(glyph)) + ']';
    return '[' + list + ']';
}

/// Which letters a glyph stands for, so that texts can be searched and copied.
QByteArray PdfFont::letters() const {
    constexpr qsizetype blockSize = 100;
    QByteArrayList lines;
    for (const quint32 glyph : glyphs()) {
        QByteArray text;
        for (const QChar c : used_.value(glyph).letters)
            text += hex(c.unicode());
        if (!text.isEmpty())
            lines << '<' + hex(glyph) + "><" + text + ">\n";
    }
    QByteArray code = "/CIDInit/ProcSet findresource begin\n12 dict begin\nbegincmap\n"
                      "/CIDSystemInfo<</Registry(Adobe)/Ordering(UCS)/Supplement 0>>def\n"
                      "/CMapName/Adobe-Identity-UCS def\n/CMapType 2 def\n"
                      "1 begincodespacerange\n<0000><FFFF>\nendcodespacerange\n";
    for (qsizetype i = 0; i < lines.size(); i += blockSize) {
        const QByteArrayList block = lines.mid(i, blockSize);
        code += QByteArray::number(block.size()) + " beginbfchar\n" + block.join() + "endbfchar\n";
    }
    return code + "endcmap\nCMapName currentdict/CMap defineresource pop\nend\nend\n";
}

QByteArray PdfFont::descriptor(int fontFile) const {
    constexpr int symbolic = 4;
    constexpr int slanted = 64;
    const bool italic = raw_.style() != QFont::StyleNormal;
    const auto corner = [this](qsizetype offset) {
        constexpr qsizetype unitsInHead = 18;
        const double units = std::max<quint16>(wordOf(tables_.head, unitsInHead), 1);
        return decimal(static_cast<qint16>(wordOf(tables_.head, offset)) * 1000 / units) + ' ';
    };
    return "<</Type/FontDescriptor/FontName/" + name() + "/Flags " +
           QByteArray::number(symbolic + (italic ? slanted : 0)) + "/FontBBox[" + corner(36) + corner(38) + corner(40) +
           corner(42) + "]/ItalicAngle " + (italic ? "-12" : "0") + "/Ascent " + decimal(raw_.ascent()) + "/Descent " +
           decimal(-raw_.descent()) + "/CapHeight " + decimal(raw_.capHeight()) + "/StemV 80/FontFile2 " +
           pdfReference(fontFile) + ">>";
}

void PdfFont::write(PdfStructure& file, int object) const {
    const int fontFile = file.reserve();
    const int about = file.reserve();
    const int glyphsFont = file.reserve();
    const int toLetters = file.reserve();
    const QByteArray subset = subsetOf(tables_, glyphs());
    file.write(fontFile, packed(subset, "/Length1 " + QByteArray::number(subset.size())));
    file.write(about, descriptor(fontFile));
    file.write(glyphsFont, "<</Type/Font/Subtype/CIDFontType2/BaseFont/" + name() +
                               "/CIDSystemInfo<</Registry(Adobe)/Ordering(Identity)/Supplement 0>>/CIDToGIDMap/Identity"
                               "/FontDescriptor " +
                               pdfReference(about) + "/W" + widths() + ">>");
    file.write(toLetters, packed(letters()));
    file.write(object, "<</Type/Font/Subtype/Type0/Encoding/Identity-H/BaseFont/" + name() + "/DescendantFonts[" +
                           pdfReference(glyphsFont) + "]/ToUnicode " + pdfReference(toLetters) + ">>");
}

PdfFont& PdfFonts::of(const QRawFont& raw, const QFont& wanted) {
    for (const auto& [known, font] : known_) {
        if (known == raw)
            return *font;
    }
    auto made = std::make_unique<PdfFont>(raw, wanted, static_cast<int>(fonts_.size()));
    const auto same = std::ranges::find_if(fonts_, [&made](const auto& font) { return font->sameFile(*made); });
    PdfFont* const font = same == fonts_.end() ? fonts_.emplace_back(std::move(made)).get() : same->get();
    known_.emplace_back(raw, font);
    return *font;
}

QByteArray PdfFonts::write(PdfStructure& file) const {
    QByteArray named;
    for (const auto& font : fonts_) {
        if (!font->embedded())
            continue;
        const int object = file.reserve();
        font->write(file, object);
        named += "/F" + QByteArray::number(font->number()) + ' ' + pdfReference(object);
    }
    return "/Font<<" + named + ">>";
}

} // namespace vanzer::desktop
