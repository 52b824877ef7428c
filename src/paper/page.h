// A page as it was drawn: a list of drawings in mm from the sheet's top left corner, the later ones on top. PDF,
// picture and printers are made from it.
#pragma once

#include <optional>
#include <variant>
#include <vector>

#include <QString>

#include "core/punto.h"
#include "paper/path.h"

namespace vanzer::paper {

/// The sheet, A4 upright, mm.
inline constexpr Punto sheetSize{210, 297};

inline constexpr double mmPerInch = 25.4;
inline constexpr double mmPerPoint = mmPerInch / 72;

/// 0xRRGGBB.
using Colour = quint32;
inline constexpr Colour black = 0;

struct Font {
    QString family{};
    bool bold = false;
    bool italic = false;
    double points = 10;
};

struct DrawnText {
    Punto base; ///< where the text begins, on its base line
    QString text;
    Font font;
    Colour colour = black;
};

struct DrawnLine {
    Punto from;
    Punto to;
    double width; ///< mm
    Colour colour = black;
};

struct DrawnBox {
    Punto from;
    Punto to;
    double width; ///< mm, of its black edge
    std::optional<Colour> fill{};
};

/// The product's sign, scaled into a box.
struct DrawnSign {
    Punto at;
    Punto size;
};

struct Stroke {
    double width;                 ///< mm
    std::vector<double> dashes{}; ///< of dashes and gaps in turn, mm; none for a line without breaks
};

/// Filled where it has no stroke.
struct DrawnPath {
    Path path;
    Colour colour = black;
    std::optional<Stroke> stroke{};
};

using Drawing = std::variant<DrawnText, DrawnLine, DrawnBox, DrawnSign, DrawnPath>;
using Page = std::vector<Drawing>;

} // namespace vanzer::paper
