// SPDX-License-Identifier: MIT
#include "scribolo/page_parts.h"

namespace vanzer::scribolo {

namespace {

using namespace Qt::StringLiterals;
using paper::Path;

constexpr Colour sky = 0xEEF4F5;
constexpr Colour hills = 0xCFE0E3;
constexpr Colour asphalt = 0x8A9396;
constexpr Colour white = 0xFFFFFF;

/// Draws a motorhome, 32 mm long, that drives to the right. `wheels` is the point on the ground below its middle.
void drawCamper(Sheet& sheet, Punto wheels) {
    constexpr double scale = 1.6;
    const auto draw = [&](const Path& path, Colour colour) { sheet.shape(path.placed(scale, wheels), colour); };
    draw(Path::rounded({-10, -10}, {14.5, 8.6}, 1.2), white);
    draw(Path::rounded({2, -10}, {6, 3.2}, 1.2), white); // the bed above the cab
    draw(Path::polygon({{{4, -1.4}, {4, -7}, {6.6, -7}, {8.2, -4.3}, {10, -3.7}, {10, -1.4}}}), white);
    draw(Path::polygon({{{5, -4.2}, {5, -6.2}, {6.3, -6.2}, {7.4, -4.2}}}), accent); // a window
    draw(Path::rounded({-8, -8.2}, {4, 2.6}, 0.5), accent);
    draw(Path::rounded({-1.6, -8.2}, {2.6, 5.8}, 0.5), hills); // the door
    for (const double axle : {-6.5, 6.0}) {
        draw(Path::circle({axle, -1.4}, 1.6), ink);
        draw(Path::circle({axle, -1.4}, 0.6), white);
    }
}

void drawPicture(Sheet& sheet, const QRectF& box) {
    const auto at = [&box](double x, double above) { return Punto{box.left() + x, box.bottom() - above}; };
    const auto ground = [&](Path path, Colour colour) {
        sheet.shape(path.lineTo(at(fullWidth, 0)).lineTo(at(0, 0)).close(), colour);
    };
    sheet.fill(box, sky);
    Path distance;
    distance.moveTo(at(0, 36)).curveTo(at(30, 60), at(55, 58), at(85, 42));
    distance.curveTo(at(105, 31), at(120, 66), at(fullWidth, 44));
    ground(distance, hills);
    Path meadow;
    meadow.moveTo(at(0, 20)).curveTo(at(50, 38), at(110, 36), at(fullWidth, 22));
    ground(meadow, accent);
    sheet.fill({box.left(), box.bottom() - 14, box.width(), 9}, asphalt);
    Path middle;
    middle.moveTo(at(0, 9.5)).lineTo(at(fullWidth, 9.5));
    sheet.curve(middle, white, {.width = 0.6, .dashes = {6, 4.5}});
    drawCamper(sheet, at(70, 12.5));
}

/// Draws the fields at the bottom of the sheet.
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
