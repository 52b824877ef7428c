// SPDX-License-Identifier: MIT
#include "paper/path.h"

namespace vanzer::paper {

Path& Path::moveTo(Punto at) {
    steps_.push_back(Step::Move);
    points_.push_back(at);
    return *this;
}

Path& Path::lineTo(Punto at) {
    steps_.push_back(Step::Line);
    points_.push_back(at);
    return *this;
}

Path& Path::curveTo(Punto first, Punto second, Punto at) {
    steps_.push_back(Step::Curve);
    points_.insert(points_.end(), {first, second, at});
    return *this;
}

Path& Path::close() {
    steps_.push_back(Step::Close);
    return *this;
}

Path Path::polygon(std::span<const Punto> corners) {
    Path path;
    for (const Punto& corner : corners)
        path.steps_.empty() ? path.moveTo(corner) : path.lineTo(corner);
    path.close();
    return path;
}

Path Path::rectangle(Punto at, Punto size) {
    const Punto corners[] = {at, {at.x + size.x, at.y}, {at.x + size.x, at.y + size.y}, {at.x, at.y + size.y}};
    return polygon(corners);
}

Path Path::rounded(Punto at, Punto size, double radius) {
    constexpr double flatness = 0.5523; // distance of the control points of a quarter circle, as a share of the radius
    const double left = at.x;
    const double top = at.y;
    const double right = at.x + size.x;
    const double bottom = at.y + size.y;
    const double rest = radius * (1 - flatness);
    Path path;
    path.moveTo({left + radius, top}).lineTo({right - radius, top});
    path.curveTo({right - rest, top}, {right, top + rest}, {right, top + radius}).lineTo({right, bottom - radius});
    path.curveTo({right, bottom - rest}, {right - rest, bottom}, {right - radius, bottom});
    path.lineTo({left + radius, bottom});
    path.curveTo({left + rest, bottom}, {left, bottom - rest}, {left, bottom - radius}).lineTo({left, top + radius});
    path.curveTo({left, top + rest}, {left + rest, top}, {left + radius, top}).close();
    return path;
}

Path Path::circle(Punto centre, double radius) {
    return rounded({centre.x - radius, centre.y - radius}, {2 * radius, 2 * radius}, radius);
}

Path Path::placed(double scale, Punto by) const {
    Path path = *this;
    for (Punto& point : path.points_)
        point = {point.x * scale + by.x, point.y * scale + by.y};
    return path;
}

} // namespace vanzer::paper
