// An A4 sheet to draw on in millimetres: the few shapes that all pages are made of, in one style.
#pragma once

#include <vector>

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>
#include <QString>

namespace vanzer::scribolo {

inline constexpr double sheetWidth = 210; // mm
inline constexpr double sheetHeight = 297;
/// What pages may fill. The left edge leaves room for the holes of a binder.
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

inline constexpr QRgb ink = 0xFF202020;
inline constexpr QRgb faintInk = 0xFF6A6A6A; ///< labels: must not shout down the handwriting
inline constexpr QRgb rule = 0xFFB4B4B4;
inline constexpr QRgb ground = 0xFFF1F2F2; ///< behind headings of tables
inline constexpr QRgb accent = 0xFF3D7A87;

struct Style {
    double size = 2.9; ///< height of the letters with their ascents and descents, about, in mm
    QRgb colour = faintInk;
    bool bold = false;
    Qt::Alignment where = Qt::AlignLeft;
};

/// A column of a table: what its heading says, and its width in mm.
struct Column {
    QString heading;
    double width = 0;
};

/// Draws on a painter whose viewport is the whole sheet. All measures are millimetres from its top left corner.
class Sheet {
  public:
    explicit Sheet(QPainter& painter);

    /// One line, in the middle of the box's height. A text too long for the box gets smaller, down to four fifths, and
    /// then loses its end.
    void text(const QRectF& box, const QString& text, const Style& style = {});
    /// Up to `lines` lines from the top of the box, in the greatest size between the style's and `smallest` in which
    /// all words fit, broken into lines of about the same length; where none does lines lose their ends. Returns the
    /// height used.
    double paragraph(const QRectF& box, const QString& text, const Style& style, double smallest, int lines);

    void line(QPointF from, QPointF to, QRgb colour = rule, double width = 0.2);
    void fill(const QRectF& box, QRgb colour);
    void frame(const QRectF& box);
    /// A shape in mm, filled.
    void shape(const QPainterPath& path, QRgb colour);
    /// An open curve in mm; dashes and gaps in mm, none for a line without breaks.
    void curve(const QPainterPath& path, QRgb colour, double width, const QList<double>& dashes = {});

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
    [[nodiscard]] QFont font(const Style& style, double size) const;
    [[nodiscard]] double width(const QString& text, const QFont& font) const;
    [[nodiscard]] QStringList wrapped(const QString& text, const QFont& font, double width, int lines) const;
    [[nodiscard]] QStringList balanced(const QString& text, const QFont& font, double width, int lines) const;
    void outline(const QRectF& box, QRgb colour, double width);
    void drawLine(const QRectF& box, const QString& text, const QFont& font, const Style& style);

    QPainter& painter_;
};

} // namespace vanzer::scribolo
