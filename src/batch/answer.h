// What commands answer, besides the line itself: an object of keys, or one with "error" alone.
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
