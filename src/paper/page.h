// SPDX-License-Identifier: MIT
// A page as a list of drawings, later ones on top. Positions and sizes are in mm, right and down from the sheet's top
// left corner. PDFs, pictures and printed pages are made from it.
#pragma once

#include <optional>
#include <variant>
#include <vector>

#include <QString>

#include "core/punto.h"
#include "paper/path.h"

namespace vanzer::paper {

/// The size of a sheet, A4 portrait, in mm.
inline constexpr Punto sheetSize{210, 297};

inline constexpr double mmPerInch = 25.4;
inline constexpr double mmPerPoint = mmPerInch / 72;

/// A colour, 0xRRGGBB.
using Colour = quint32;
inline constexpr Colour black = 0;

struct Font {
    QString family{};
    bool bold = false;
    bool italic = false;
    double points = 10;
};

struct DrawnText {
    Punto base; ///< start of the text's base line
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
    std::vector<double> dashes{}; ///< lengths of dashes and gaps in turn, mm; empty for a solid line
};

/// A path, stroked if it has a stroke, else filled.
struct DrawnPath {
    Path path;
    Colour colour = black;
    std::optional<Stroke> stroke{};
};

using Drawing = std::variant<DrawnText, DrawnLine, DrawnBox, DrawnSign, DrawnPath>;
using Page = std::vector<Drawing>;

} // namespace vanzer::paper
