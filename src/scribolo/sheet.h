// An A4 sheet to draw on in millimetres: the few shapes that all pages are made of, in one style.
#pragma once

#include <vector>

#include <QRectF>
#include <QString>

#include "paper/fonts.h"
#include "paper/page.h"

namespace vanzer::scribolo {

using paper::Colour;

/// What pages may fill, mm. The left edge leaves room for the holes of a binder.
inline constexpr double leftEdge = 21;
inline constexpr double rightEdge = 196;
inline constexpr double topEdge = 14;
inline constexpr double footLine = 285;
inline constexpr double fullWidth = rightEdge - leftEdge;
/// Between a frame and its text.
inline constexpr double inset = 1.6;

/// What a traveller writes on by hand is at least this high.
inline constexpr double writingRow = 8;
inline constexpr double titleHeight = 6;

inline constexpr Colour ink = 0x202020;
inline constexpr Colour faintInk = 0x6A6A6A; ///< labels: must not shout down the handwriting
inline constexpr Colour rule = 0xB4B4B4;
inline constexpr Colour ground = 0xF1F2F2; ///< behind headings of tables
inline constexpr Colour accent = 0x3D7A87;

struct Style {
    double size = 2.9; ///< height of the letters with their ascents and descents, about, in mm
    Colour colour = faintInk;
    bool bold = false;
    Qt::Alignment where = Qt::AlignLeft;
};

/// A column of a table: what its heading says, and its width in mm.
struct Column {
    QString heading;
    double width = 0;
};

/// Draws on a page. All measures are millimetres from its top left corner.
class Sheet {
  public:
    /// `page` and `fonts` live as long.
    Sheet(paper::Page& page, paper::Fonts& fonts);

    /// One line, in the middle of the box's height. A text too long for the box gets smaller, down to four fifths, and
    /// then loses its end.
    void text(const QRectF& box, const QString& text, const Style& style = {});
    /// Up to `lines` lines from the top of the box, in the greatest size between the style's and `smallest` in which
    /// all words fit, broken into lines of about the same length; where none does lines lose their ends. Returns the
    /// height used.
    double paragraph(const QRectF& box, const QString& text, const Style& style, double smallest, int lines);

    void line(QPointF from, QPointF to, Colour colour = rule, double width = 0.2);
    void fill(const QRectF& box, Colour colour);
    void frame(const QRectF& box);
    /// A shape, filled.
    void shape(const paper::Path& path, Colour colour);
    /// The edge of a shape, or an open line.
    void curve(const paper::Path& path, Colour colour, const paper::Stroke& stroke);

    /// The name of a group of fields. Returns where the group begins, down from the top of the sheet.
    double title(QPointF topLeft, double width, const QString& text);
    /// Boxes to tick side by side, each with its label behind it, spread over the width of `box`.
    void tickBoxes(const QRectF& box, const QStringList& labels);
    /// A framed field, its label at the left, and a unit at its right end.
    void field(const QRectF& box, const QString& label, const QString& unit = {}, const Style& style = {});
    /// Lines to write on, at least a writing row apart, down to the foot of the box.
    void ruledLines(const QRectF& box);
    /// Headings and the grid of `rows` empty rows below them. Returns where the table ends, down from the top
    /// of the sheet.
    double table(QPointF topLeft, const std::vector<Column>& columns, int rows, double rowHeight = writingRow);

  private:
    [[nodiscard]] double width(const QString& text, const paper::Font& font) const;
    [[nodiscard]] QString elided(const QString& text, const paper::Font& font, double width) const;
    [[nodiscard]] paper::Font font(const Style& style, double size) const;
    [[nodiscard]] QStringList wrapped(const QString& text, const paper::Font& font, double width, int lines) const;
    [[nodiscard]] QStringList balanced(const QString& text, const paper::Font& font, double width, int lines) const;
    void drawLine(const QRectF& box, const QString& text, const paper::Font& font, const Style& style);

    paper::Page& page_;
    paper::Fonts& fonts_;
};

} // namespace vanzer::scribolo
