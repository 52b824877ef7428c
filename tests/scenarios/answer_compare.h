#pragma once

#include <QJsonObject>
#include <QStringList>

namespace scenarios {

/// Compares two answers of vanzer-batch and returns one line per difference, "where: expected … got …"; none when they
/// agree. Figures of recorded pages, in mm, may differ by 0.011, and an error that is expected to be "*" may be any;
/// everything else is equal.
[[nodiscard]] QStringList differences(const QJsonObject& expected, const QJsonObject& got);

} // namespace scenarios
