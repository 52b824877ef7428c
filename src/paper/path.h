// Outlines made of lines and curves.
#pragma once

#include <span>
#include <vector>

#include "core/punto.h"

namespace vanzer::paper {

/// Positions in mm.
class Path {
  public:
    enum class Step { Move, Line, Curve, Close };

    Path& moveTo(Punto at);
    Path& lineTo(Punto at);
    /// A cubic curve, drawn towards `first` and coming from `second`.
    Path& curveTo(Punto first, Punto second, Punto at);
    Path& close();

    /// Closed, its first corner first.
    [[nodiscard]] static Path polygon(std::span<const Punto> corners);
    [[nodiscard]] static Path rectangle(Punto at, Punto size);
    /// Its corners are quarters of a circle.
    [[nodiscard]] static Path rounded(Punto at, Punto size, double radius);
    [[nodiscard]] static Path circle(Punto centre, double radius);

    /// Scaled around the sheet's corner, then moved.
    [[nodiscard]] Path placed(double scale, Punto by) const;

    [[nodiscard]] const std::vector<Step>& steps() const { return steps_; }
    /// Of all steps one after the other: one of a move and a line, three of a curve, none of a close.
    [[nodiscard]] const std::vector<Punto>& points() const { return points_; }

  private:
    std::vector<Step> steps_;
    std::vector<Punto> points_;
};

} // namespace vanzer::paper
