// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QStringList>

namespace scenarios {

/// Compares two answers of vanzer-batch. Returns one line per difference, "where: expected … got …", or nothing if they
/// agree. Figures of recorded pages, in mm, may differ by 0.011. An expected error "*" stands for any error. Everything
/// else must be equal.
[[nodiscard]] QStringList differences(const QJsonObject& expected, const QJsonObject& got);

} // namespace scenarios
