// SPDX-License-Identifier: MIT
// An A4 sheet to draw on, in millimetres: the shapes that all pages share, in one style.
#pragma once

#include <vector>

#include <QRectF>
#include <QString>

#include "paper/fonts.h"
#include "paper/page.h"

namespace vanzer::scribolo {

using paper::Colour;

/// Edges of the area that pages may use, in mm. The left edge leaves room for the holes of a binder.
inline constexpr double leftEdge = 21;
inline constexpr double rightEdge = 196;
inline constexpr double topEdge = 14;
inline constexpr double footLine = 285;
inline constexpr double fullWidth = rightEdge - leftEdge;
/// Distance between a frame and its text, in mm.
inline constexpr double inset = 1.6;

/// Least height of a row to write on by hand, in mm.
inline constexpr double writingRow = 8;
inline constexpr double titleHeight = 6;

inline constexpr Colour ink = 0x202020;
inline constexpr Colour faintInk = 0x6A6A6A; ///< labels, fainter than handwriting
inline constexpr Colour rule = 0xB4B4B4;
inline constexpr Colour ground = 0xF1F2F2; ///< background of table headings
inline constexpr Colour accent = 0x3D7A87;

struct Style {
    double size = 2.9; ///< about the height of letters with ascenders and descenders, in mm
    Colour colour = faintInk;
    bool bold = false;
    Qt::Alignment where = Qt::AlignLeft;
};

/// A column of a table: its heading and its width in mm.
struct Column {
    QString heading;
    double width = 0;
};

/// Draws on a page. All positions and sizes are in mm, right and down from its top left corner.
class Sheet {
  public:
    /// `page` and `fonts` must outlive the sheet.
    Sheet(paper::Page& page, paper::Fonts& fonts);

    /// Draws one line of text, centred vertically in the box. A text that is too long is shrunk, at most to four
    /// fifths, and then cut.
    void text(const QRectF& box, const QString& text, const Style& style = {});
    /// Draws up to `lines` lines of similar length from the top of the box, and returns the height used (mm). Uses the
    /// greatest size between the style's and `smallest` at which all words fit. If none fits, lines are cut.
    double paragraph(const QRectF& box, const QString& text, const Style& style, double smallest, int lines);

    void line(QPointF from, QPointF to, Colour colour = rule, double width = 0.2);
    void fill(const QRectF& box, Colour colour);
    void frame(const QRectF& box);
    /// Fills a shape.
    void shape(const paper::Path& path, Colour colour);
    /// Strokes the edge of a shape, or an open line.
    void curve(const paper::Path& path, Colour colour, const paper::Stroke& stroke);

    /// Draws the name of a group of fields. Returns where the group begins, in mm from the top of the sheet.
    double title(QPointF topLeft, double width, const QString& text);
    /// Draws boxes to tick with their labels, spread over the width of `box`.
    void tickBoxes(const QRectF& box, const QStringList& labels);
    /// Draws a framed field with its label on the left and a unit on the right.
    void field(const QRectF& box, const QString& label, const QString& unit = {}, const Style& style = {});
    /// Draws lines to write on, at least `writingRow` apart, down to the bottom of the box.
    void ruledLines(const QRectF& box);
    /// Draws headings and `rows` empty rows below them. Returns where the table ends, in mm from the top of the sheet.
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
