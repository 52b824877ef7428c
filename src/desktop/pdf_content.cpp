#include "desktop/pdf_content.h"

#include <algorithm>
#include <charconv>
#include <cstring>

#include "desktop/print_font.h"

namespace vanzer::desktop {

namespace {

constexpr int steps = 100; ///< of a position, for each mm
const QByteArray toPoints = "0.0283464567 0 0 0.0283464567 0 0 cm\n";
constexpr std::size_t numberRoom = 12;

int nearest(double x) {
    return static_cast<int>(x < 0 ? x - 0.5 : x + 0.5);
}

int inSteps(double mm) {
    return nearest(mm * steps);
}

char* written(char* to, int number) {
    to = std::to_chars(to, to + numberRoom, number).ptr;
    *to++ = ' ';
    return to;
}

char* written(char* to, QByteArrayView bytes) {
    return std::copy(bytes.begin(), bytes.end(), to);
}

/// A byte within the brackets of a text.
char* inText(char* to, unsigned byte) {
    const char c = static_cast<char>(byte);
    if (c == '(' || c == ')' || c == '\\')
        *to++ = '\\';
    if (c == '\r')
        return written(to, "\\r");
    *to++ = c;
    return to;
}

constexpr std::size_t glyphRoom = 4;
char* glyphInText(char* to, quint32 glyph) {
    return inText(inText(to, glyph >> 8U & 0xFFU), glyph & 0xFFU);
}

/// Moves what follows in a text by thousandths of its size to the left.
constexpr std::size_t moveRoom = numberRoom + 2;
char* moved(char* to, int left) {
    *to++ = ')';
    to = written(to, left);
    *to++ = '(';
    return to;
}

QByteArray fraction(double x) {
    return QByteArray::number(x, 'f', 3) + ' ';
}

QByteArray colour(quint32 rgb) {
    QByteArray code;
    for (const unsigned shift : {16U, 8U, 0U})
        code += fraction((rgb >> shift & 0xFFU) / 255.0);
    return code + "rg ";
}

} // namespace

char* ContentBytes::room(std::size_t most) {
    if (bytes_.size() < used_ + most)
        bytes_.resize(2 * (used_ + most));
    return bytes_.data() + used_;
}

void ContentBytes::add(QByteArrayView bytes) {
    end(written(room(static_cast<std::size_t>(bytes.size())), bytes));
}

void ContentBytes::add(int number) {
    end(written(room(numberRoom), number));
}

PdfContent::Place PdfContent::placeOf(Punto at) {
    static const int height = inSteps(sheetSize.height());
    return {inSteps(at.x), height - inSteps(at.y)};
}

PdfStream PdfContent::content(const DrawnPage& page) {
    page_.clear();
    page_.add(toPoints);
    font_ = -1;
    for (const Drawing& drawing : page)
        std::visit([this](const auto& one) { add(one); }, drawing);
    layer();
    return packed(page_.view());
}

void PdfContent::layer() {
    for (Pen& pen : pens_)
        close(pen);
    if (texts_.view().isEmpty())
        return;
    page_.add("BT\n");
    page_.add(texts_.view());
    page_.add("ET\n");
    texts_.clear();
    textAt_ = {};
}

PdfContent::Pen& PdfContent::pen(double width) {
    const int wanted = inSteps(width);
    for (Pen& pen : pens_) {
        if (pen.width == wanted)
            return pen;
    }
    return pens_.emplace_back(Pen{wanted});
}

void PdfContent::addUpright(Pen& pen, const Upright& line) {
    for (const int number : {line.x, line.top})
        pen.path.add(number);
    pen.path.add("m ");
    for (const int number : {line.x, line.bottom})
        pen.path.add(number);
    pen.path.add("l\n");
}

void PdfContent::close(Pen& pen) {
    for (const Upright& line : pen.uprights)
        addUpright(pen, line);
    pen.uprights.clear();
    if (pen.path.view().isEmpty())
        return;
    page_.add(pen.width);
    page_.add("w\n");
    page_.add(pen.path.view());
    page_.add("S\n");
    pen.path.clear();
}

void PdfContent::add(const DrawnLine& line) {
    Pen& pen = this->pen(line.width);
    const Place from = placeOf(line.from);
    const Place to = placeOf(line.to);
    if (from.x == to.x && from.y > to.y) {
        const auto above = std::ranges::find_if(
            pen.uprights, [&](const Upright& one) { return one.x == from.x && one.bottom == from.y; });
        if (above == pen.uprights.end())
            pen.uprights.push_back({from.x, from.y, to.y});
        else
            above->bottom = to.y;
        return;
    }
    char* end = pen.path.room(4 * numberRoom + 4);
    end = written(written(written(end, from.x), from.y), "m ");
    end = written(written(written(end, to.x), to.y), "l\n");
    pen.path.end(end);
}

void PdfContent::rectangle(ContentBytes& bytes, Punto from, Punto to) {
    const Place a = placeOf(from);
    const Place b = placeOf(to);
    for (const int number : {std::min(a.x, b.x), std::min(a.y, b.y), std::abs(b.x - a.x), std::abs(b.y - a.y)})
        bytes.add(number);
    bytes.add("re ");
}

void PdfContent::add(const DrawnBox& box) {
    if (!box.fill) {
        rectangle(pen(box.width).path, box.from, box.to);
        return;
    }
    layer();
    page_.add("q ");
    page_.add(colour(*box.fill));
    page_.add(inSteps(box.width));
    page_.add("w ");
    rectangle(page_, box.from, box.to);
    page_.add("B Q\n");
}

void PdfContent::add(const DrawnPicture& picture) {
    pictureUsed_ = true;
    layer();
    const Place corner = placeOf({picture.at.x, picture.at.y + picture.size.y});
    page_.add("q ");
    for (const int number : {inSteps(picture.size.x), 0, 0, inSteps(picture.size.y), corner.x, corner.y})
        page_.add(number);
    page_.add("cm ");
    page_.add(pictureName);
    page_.add(" Do Q\n");
}

PdfContent::Face& PdfContent::known(const PrintFace& face) {
    for (const auto& known : faces_) {
        if (known->face == &face)
            return *known;
    }
    faces_.push_back(std::make_unique<Face>(Face{&face, &fonts_.of(face.raw(), face.font())}));
    return *faces_.back();
}

void PdfContent::add(const DrawnText& text) {
    const Place base = placeOf({text.at.x, text.at.y + text.face->ascent() * text.scale});
    const double size = emPixels * text.scale * steps;
    Face& face = known(*text.face);
    if (!face.font->embedded() || !text.face->byPairs(text.text)) {
        byGlyphs(text, base, size);
        return;
    }
    useFont(*face.font, size);
    byLetters(face, text, base);
}

void PdfContent::useFont(const PdfFont& font, double size) {
    const int hundredths = nearest(size * 100);
    if (font.number() == font_ && hundredths == size_)
        return;
    font_ = font.number();
    size_ = hundredths;
    char* end = texts_.room(3 * numberRoom);
    end = written(written(end, "/F"), font_);
    // The point stands before the last two digits.
    end = std::to_chars(end, end + numberRoom, hundredths / 100).ptr;
    *end++ = '.';
    *end++ = static_cast<char>('0' + hundredths / 10 % 10);
    *end++ = static_cast<char>('0' + hundredths % 10);
    texts_.end(written(end, " Tf\n"));
}

/// Positions count from where the text before began.
void PdfContent::moveTo(Place place) {
    char* end = texts_.room(2 * numberRoom + 3);
    end = written(written(end, place.x - textAt_.x), place.y - textAt_.y);
    texts_.end(written(end, "Td "));
    textAt_ = place;
}

const PdfContent::Code& PdfContent::code(Face& face, QChar letter) {
    Code& code = face.codes[letter.unicode()];
    if (code.size == 0) {
        const quint32 glyph = face.face->letter(letter).glyph;
        face.font->use(glyph, letter);
        code.size = static_cast<std::uint8_t>(glyphInText(code.bytes.data(), glyph) - code.bytes.data());
    }
    return code;
}

void PdfContent::byLetters(Face& face, const DrawnText& text, Place base) {
    moveTo(base);
    char* end = texts_.room(static_cast<std::size_t>(text.text.size()) * (glyphRoom + moveRoom) + numberRoom);
    end = written(end, "[(");
    QChar before;
    for (const QChar letter : text.text) {
        const int kerning = before.isNull() ? 0 : face.face->kerning(before, letter);
        if (kerning != 0)
            end = moved(end, nearest(-static_cast<double>(kerning) / PrintFace::parts));
        const Code& code = this->code(face, letter);
        std::memcpy(end, code.bytes.data(), code.bytes.size());
        end += code.size;
        before = letter;
    }
    texts_.end(written(end, ")]TJ\n"));
}

void PdfContent::byGlyphs(const DrawnText& text, Place base, double size) {
    for (const QGlyphRun& run : text.face->shaped(text.text)) {
        PdfFont& font = fonts_.of(run.rawFont(), text.face->font());
        if (font.embedded()) {
            font.use(run, text.text);
            glyphs(run, font, base, size);
        } else {
            outlines(run, font, base, size);
        }
    }
}

/// A glyph above or below the line begins another piece.
void PdfContent::glyphs(const QGlyphRun& run, const PdfFont& font, Place base, double size) {
    const QList<quint32> indexes = run.glyphIndexes();
    const QList<QPointF> positions = run.positions();
    const double perPixel = size / emPixels;
    useFont(font, size);
    double at = 0;
    for (qsizetype i = 0; i < indexes.size(); ++i) {
        const QPointF place = positions[i];
        const bool begins = i == 0 || place.y() != positions[i - 1].y();
        if (begins) {
            if (i > 0)
                texts_.add(")]TJ\n");
            moveTo({base.x + nearest(place.x() * perPixel), base.y - nearest(place.y() * perPixel)});
            texts_.add("[(");
            at = place.x();
        }
        char* end = texts_.room(glyphRoom + moveRoom);
        const int left = nearest(at - place.x());
        if (left != 0)
            end = moved(end, left);
        texts_.end(glyphInText(end, indexes[i]));
        at += font.advance(indexes[i]) - left;
    }
    if (!indexes.isEmpty())
        texts_.add(")]TJ\n");
}

void PdfContent::outlines(const QGlyphRun& run, PdfFont& font, Place base, double size) {
    const double perPixel = size / emPixels;
    const QList<quint32> indexes = run.glyphIndexes();
    for (qsizetype i = 0; i < indexes.size(); ++i) {
        const QByteArray& outline = font.outline(indexes[i]);
        if (outline.isEmpty())
            continue;
        const QPointF place = run.positions()[i] * perPixel;
        page_.add("q " + fraction(perPixel) + "0 0 " + fraction(perPixel) + fraction(base.x + place.x()) +
                  fraction(base.y - place.y()) + "cm\n" + outline + " Q\n");
    }
}

} // namespace vanzer::desktop
