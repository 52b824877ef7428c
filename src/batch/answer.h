// SPDX-License-Identifier: MIT
// The answer to a command: an object with its results, or with "error" alone.
#pragma once

#include <QJsonObject>
#include <QString>

namespace vanzer::batch {

[[nodiscard]] inline QJsonObject failure(const QString& why) {
    return {{"error", why}};
}
[[nodiscard]] inline QJsonObject badArguments() {
    return failure(QStringLiteral("bad arguments"));
}
[[nodiscard]] inline QJsonObject noWindow() {
    return failure(QStringLiteral("no window"));
}

} // namespace vanzer::batch
