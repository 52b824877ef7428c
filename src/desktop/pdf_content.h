// The content of a PDF's pages, one after the other. Black on black needs no order: the lines of a page become one path
// for each pen, its texts one list; both end where something is laid over them.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "desktop/drawn_page.h"
#include "desktop/pdf_font.h"

namespace vanzer::desktop {

/// Operators as they are written; keeps its room from one page to the next.
class ContentBytes {
  public:
    /// Where `most` bytes can be written; `end` tells how far that was done.
    [[nodiscard]] char* room(std::size_t most);
    void end(const char* end) { used_ = static_cast<std::size_t>(end - bytes_.data()); }
    void add(QByteArrayView bytes);
    /// A number and a blank.
    void add(int number);
    void clear() { used_ = 0; }
    [[nodiscard]] QByteArrayView view() const { return {bytes_.data(), static_cast<qsizetype>(used_)}; }

  private:
    std::vector<char> bytes_;
    std::size_t used_ = 0;
};

class PdfContent {
  public:
    explicit PdfContent(PdfFonts& fonts) : fonts_(fonts) {}

    /// The name by which contents call the product's sign.
    static constexpr QByteArrayView pictureName = "/P";
    [[nodiscard]] bool pictureUsed() const { return pictureUsed_; }

    [[nodiscard]] PdfStream content(const DrawnPage& page);

  private:
    /// Positions and sizes are counted in steps of the file's own grid, upwards from the sheet's lower edge.
    struct Place {
        int x;
        int y;
    };
    /// A line upwards or downwards, which the one of the next row goes on with.
    struct Upright {
        int x;
        int top;
        int bottom;
    };
    struct Pen {
        int width;
        ContentBytes path{};
        std::vector<Upright> uprights{};
    };
    /// A letter's bytes in a text; none before it is used.
    struct Code {
        std::array<char, 4> bytes;
        std::uint8_t size;
    };
    struct Face {
        const PrintFace* face;
        PdfFont* font;
        std::array<Code, PrintFace::letters> codes{};
    };

    void add(const DrawnText& text);
    void add(const DrawnLine& line);
    void add(const DrawnBox& box);
    void add(const DrawnPicture& picture);

    [[nodiscard]] static Place placeOf(Punto at);
    [[nodiscard]] Pen& pen(double width);
    void close(Pen& pen);
    static void addUpright(Pen& pen, const Upright& line);
    void rectangle(ContentBytes& bytes, Punto from, Punto to);

    [[nodiscard]] Face& known(const PrintFace& face);
    const Code& code(Face& face, QChar letter);
    void useFont(const PdfFont& font, double size);
    void moveTo(Place place);
    void byLetters(Face& face, const DrawnText& text, Place base);
    void byGlyphs(const DrawnText& text, Place base, double size);
    void glyphs(const QGlyphRun& run, const PdfFont& font, Place base, double size);
    void outlines(const QGlyphRun& run, PdfFont& font, Place base, double size);

    /// What was drawn so far lies below what comes.
    void layer();

    PdfFonts& fonts_;
    std::vector<std::unique_ptr<Face>> faces_;
    bool pictureUsed_ = false;

    // The page at hand.
    ContentBytes page_;
    ContentBytes texts_;
    std::vector<Pen> pens_;
    Place textAt_{}; ///< where the text before began
    int font_ = -1;
    int size_ = 0; ///< hundredths of a step
};

} // namespace vanzer::desktop
