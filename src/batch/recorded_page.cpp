// SPDX-License-Identifier: MIT
#include "batch/recorded_page.h"

#include <cmath>

namespace vanzer::batch {

namespace {

/// Adding 0.0 turns -0.0 into 0.0.
double rounded(double x) {
    return std::round(x * 100) / 100 + 0.0;
}

QJsonObject withEnds(const Operazione& o, const QString& name) {
    return {{"op", name},           {"x1", rounded(o.a.x)}, {"y1", rounded(o.a.y)},
            {"x2", rounded(o.b.x)}, {"y2", rounded(o.b.y)}, {"width", o.width}};
}

QJsonValue colour(std::optional<quint32> fill) {
    return fill ? QJsonValue(QStringLiteral("#%1").arg(*fill & 0xFFFFFFU, 6, 16, QChar(u'0'))) : QJsonValue();
}

QJsonObject textAnswer(const Operazione& o) {
    return {{"op", "text"},
            {"x", rounded(o.a.x)},
            {"y", rounded(o.a.y)},
            {"text", o.text},
            {"size", rounded(o.font.size)},
            {"bold", o.font.bold},
            {"italic", o.font.italic},
            {"font", o.font.name}};
}

QJsonObject boxAnswer(const Operazione& o) {
    QJsonObject answer = withEnds(o, QStringLiteral("box"));
    answer.insert(u"fill", colour(o.fill));
    return answer;
}

} // namespace

QJsonObject operationAnswer(const Operazione& o) {
    switch (o.kind) {
    case Operazione::Kind::Text: return textAnswer(o);
    case Operazione::Kind::Line: return withEnds(o, QStringLiteral("line"));
    case Operazione::Kind::Box: return boxAnswer(o);
    default:
        return {{"op", "picture"},
                {"x", rounded(o.a.x)},
                {"y", rounded(o.a.y)},
                {"w", rounded(o.b.x)},
                {"h", rounded(o.b.y)}};
    }
}

} // namespace vanzer::batch
