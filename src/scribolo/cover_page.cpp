#include "scribolo/page_parts.h"

namespace vanzer::scribolo {

namespace {

using namespace Qt::StringLiterals;

constexpr QRgb sky = 0xFFEEF4F5;
constexpr QRgb hills = 0xFFCFE0E3;
constexpr QRgb asphalt = 0xFF8A9396;
constexpr QRgb white = 0xFFFFFFFF;

/// A motorhome that drives to the right, 32 mm long; `wheels` is where it stands, below its middle.
void drawCamper(Sheet& sheet, QPointF wheels) {
    constexpr double scale = 1.6;
    const auto draw = [&](const QPainterPath& path, QRgb colour) {
        sheet.shape(QTransform().translate(wheels.x(), wheels.y()).scale(scale, scale).map(path), colour);
    };
    const auto box = [&](const QRectF& place, double radius, QRgb colour) {
        QPainterPath path;
        path.addRoundedRect(place, radius, radius);
        draw(path, colour);
    };
    box({-10, -10, 14.5, 8.6}, 1.2, white);
    box({2, -10, 6, 3.2}, 1.2, white); // the bed above the cab
    QPainterPath cab;
    cab.addPolygon({{{4, -1.4}, {4, -7}, {6.6, -7}, {8.2, -4.3}, {10, -3.7}, {10, -1.4}}});
    draw(cab, white);
    QPainterPath pane;
    pane.addPolygon({{{5, -4.2}, {5, -6.2}, {6.3, -6.2}, {7.4, -4.2}}});
    draw(pane, accent);
    box({-8, -8.2, 4, 2.6}, 0.5, accent);
    box({-1.6, -8.2, 2.6, 5.8}, 0.5, hills); // the door
    for (const double axle : {-6.5, 6.0}) {
        box({axle - 1.6, -3, 3.2, 3.2}, 1.6, ink);
        box({axle - 0.6, -2, 1.2, 1.2}, 0.6, white);
    }
}

void drawPicture(Sheet& sheet, const QRectF& box) {
    const auto at = [&box](double x, double above) { return QPointF(box.left() + x, box.bottom() - above); };
    sheet.fill(box, sky);
    QPainterPath distance(at(0, 36));
    distance.cubicTo(at(30, 60), at(55, 58), at(85, 42));
    distance.cubicTo(at(105, 31), at(120, 66), at(fullWidth, 44));
    distance.lineTo(box.bottomRight());
    distance.lineTo(box.bottomLeft());
    sheet.shape(distance, hills);
    QPainterPath meadow(at(0, 20));
    meadow.cubicTo(at(50, 38), at(110, 36), at(fullWidth, 22));
    meadow.lineTo(box.bottomRight());
    meadow.lineTo(box.bottomLeft());
    sheet.shape(meadow, accent);
    const QRectF road(box.left(), box.bottom() - 14, box.width(), 9);
    sheet.fill(road, asphalt);
    QPainterPath middle(QPointF(road.left(), road.center().y()));
    middle.lineTo(road.right(), road.center().y());
    sheet.curve(middle, white, 0.6, {6, 4.5});
    drawCamper(sheet, at(70, 12.5));
}

/// Down to the foot of the sheet.
void drawFields(Sheet& sheet) {
    constexpr double row = 12; // mm
    constexpr double half = fullWidth / 2;
    constexpr double top = footLine - 4 * row;
    const QRectF whole(leftEdge, top, fullWidth, row);
    const QRectF part(leftEdge, top + 2 * row, half, row);
    constexpr Style label{.size = 3.5};
    sheet.field(whole, u"Equipaggio"_s, {}, label);
    sheet.field(whole.translated(0, row), u"Camper e targa"_s, {}, label);
    sheet.field(part, u"Alla partenza"_s, u"km"_s, label);
    sheet.field(part.translated(half, 0), u"Al ritorno"_s, u"km"_s, label);
    sheet.field(whole.translated(0, 3 * row), u"Numeri utili"_s, {}, label);
}

} // namespace

void drawCover(Sheet& sheet, const Trip& trip) {
    const QRectF picture(leftEdge, 18, fullWidth, 80);
    drawPicture(sheet, picture);
    double y = picture.bottom() + 12;
    sheet.text({leftEdge, y, fullWidth, 8}, u"Diario di bordo"_s, {.size = 6, .colour = accent, .bold = true});
    y += 12;
    y += sheet.paragraph({leftEdge, y, fullWidth, 0}, trip.name, {.size = 15, .colour = ink, .bold = true}, 7, 4) + 3;
    sheet.text({leftEdge, y, fullWidth, 9}, period(trip), {.size = 6.2, .colour = ink});
    sheet.text({leftEdge, y + 9, fullWidth, 8}, length(trip), {.size = 5, .colour = faintInk});
    drawFields(sheet);
}

} // namespace vanzer::scribolo
