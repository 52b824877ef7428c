// A page as it was drawn: a list of operations in mm from the sheet's top left corner. Paper, PDF and preview replay
// it.
#pragma once

#include <optional>
#include <variant>
#include <vector>

#include <QImage>
#include <QPainter>
#include <QSizeF>

#include "desktop/print_face.h"
#include "toolkit/printer.h"

namespace vanzer::desktop {

struct DrawnText {
    Punto at; ///< top left corner of the line
    QString text;
    const PrintFace* face; ///< lives longer than the page
    double scale;          ///< mm for each pixel of its font
};

struct DrawnLine {
    Punto from;
    Punto to;
    double width; ///< mm
};

struct DrawnBox {
    Punto from;
    Punto to;
    double width; ///< mm
    std::optional<quint32> fill;
};

struct DrawnPicture {
    Immagine picture;
    Punto at;
    Punto size;
};

using Drawing = std::variant<DrawnText, DrawnLine, DrawnBox, DrawnPicture>;
using DrawnPage = std::vector<Drawing>;

/// The sheet, A4 upright, mm.
inline constexpr QSizeF sheetSize{210, 297};

/// Both pictures are the product's sign.
[[nodiscard]] QImage signPicture();

/// Draws the page with the sheet's corner at the painter's origin; `perMm` units of the painter are one mm.
void replay(const DrawnPage& page, QPainter& painter, double perMm);

} // namespace vanzer::desktop
