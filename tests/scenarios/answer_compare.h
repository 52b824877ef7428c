#pragma once

#include <QJsonObject>
#include <QStringList>

namespace scenarios {

/// Compares two answers of vanzer-batch and returns one line per difference, "where: expected … got …"; none when they
/// agree. Free are the place and size of a control, a grid's top row, a tool tip that is expected to be empty, and the
/// text of an error that is expected to be "*". Figures of recorded pages, in mm, may differ by 0.011; everything else
/// is equal.
[[nodiscard]] QStringList differences(const QJsonObject& expected, const QJsonObject& got);

} // namespace scenarios
