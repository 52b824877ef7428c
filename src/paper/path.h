// SPDX-License-Identifier: MIT
// Outlines made of lines and curves.
#pragma once

#include <span>
#include <vector>

#include "core/punto.h"

namespace vanzer::paper {

/// An outline. Positions are in mm.
class Path {
  public:
    enum class Step { Move, Line, Curve, Close };

    Path& moveTo(Punto at);
    Path& lineTo(Punto at);
    /// A cubic Bézier curve to `at`, with the control points `first` and `second`.
    Path& curveTo(Punto first, Punto second, Punto at);
    Path& close();

    /// A closed polygon, starting at its first corner.
    [[nodiscard]] static Path polygon(std::span<const Punto> corners);
    [[nodiscard]] static Path rectangle(Punto at, Punto size);
    /// A rectangle whose corners are quarter circles of that radius (mm).
    [[nodiscard]] static Path rounded(Punto at, Punto size, double radius);
    [[nodiscard]] static Path circle(Punto centre, double radius);

    /// A copy, scaled about the sheet's top left corner and then moved by `by` (mm).
    [[nodiscard]] Path placed(double scale, Punto by) const;

    [[nodiscard]] const std::vector<Step>& steps() const { return steps_; }
    /// The points of all steps in turn: one for a move or a line, three for a curve, none for a close.
    [[nodiscard]] const std::vector<Punto>& points() const { return points_; }

  private:
    std::vector<Step> steps_;
    std::vector<Punto> points_;
};

} // namespace vanzer::paper
