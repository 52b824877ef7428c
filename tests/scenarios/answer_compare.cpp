// SPDX-License-Identifier: MIT
#include "answer_compare.h"

#include <algorithm>
#include <cmath>

#include <QJsonArray>
#include <QJsonDocument>

namespace scenarios {

namespace {

constexpr double pageTolerance = 0.011; // mm; two values that are each rounded to two decimals may differ so much

QString shown(const QJsonValue& value) {
    return QString::fromUtf8(
        QJsonDocument(value.isUndefined() ? QJsonArray() : QJsonArray{value}).toJson(QJsonDocument::Compact));
}

bool same(const QString& where, const QJsonValue& expected, const QJsonValue& got) {
    if (where.startsWith(u"pages[") && expected.isDouble() && got.isDouble())
        return std::abs(expected.toDouble() - got.toDouble()) <= pageTolerance;
    return expected == got || (where.endsWith(u"error") && expected == QStringLiteral("*") && got.isString());
}

void compare(const QString& where, const QJsonValue& expected, const QJsonValue& got, QStringList& found) {
    if (expected.isObject() && got.isObject()) {
        QStringList keys = expected.toObject().keys() + got.toObject().keys();
        keys.removeDuplicates();
        for (const QString& key : keys)
            compare(where.isEmpty() ? key : where + u'.' + key, expected[key], got[key], found);
    } else if (expected.isArray() && got.isArray()) {
        const qsizetype count = std::max(expected.toArray().size(), got.toArray().size());
        for (qsizetype i = 0; i < count; ++i)
            compare(QStringLiteral("%1[%2]").arg(where).arg(i), expected[i], got[i], found);
    } else if (!same(where, expected, got)) {
        found.append(QStringLiteral("%1: expected %2 got %3").arg(where, shown(expected), shown(got)));
    }
}

} // namespace

QStringList differences(const QJsonObject& expected, const QJsonObject& got) {
    QStringList found;
    compare({}, expected, got, found);
    return found;
}

} // namespace scenarios
