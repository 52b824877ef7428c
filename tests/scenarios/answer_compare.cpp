#include "answer_compare.h"

#include <algorithm>
#include <cmath>

#include <QJsonArray>
#include <QJsonDocument>

namespace scenarios {

namespace {

constexpr double pageTolerance = 0.011; // mm: two roundings to two decimals

QString textOf(const QJsonValue& value) {
    if (value.isUndefined())
        return QStringLiteral("nothing");
    const QByteArray wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(wrapped.mid(1, wrapped.size() - 2));
}

class Comparer {
  public:
    QStringList found;

    void compare(const QString& where, const QJsonValue& expected, const QJsonValue& got) {
        if (expected.isObject() && got.isObject())
            compareObjects(where, expected.toObject(), got.toObject());
        else if (expected.isArray() && got.isArray())
            compareArrays(where, expected.toArray(), got.toArray());
        else if (!sameValue(where, expected, got))
            found.append(QStringLiteral("%1: expected %2 got %3").arg(where, textOf(expected), textOf(got)));
    }

    void compareObjects(const QString& where, const QJsonObject& expected, const QJsonObject& got) {
        QStringList keys = expected.keys() + got.keys();
        keys.removeDuplicates();
        for (const QString& key : keys)
            if (!isFree(key, expected, got))
                compare(where.isEmpty() ? key : where + u'.' + key, expected.value(key), got.value(key));
    }

  private:
    void compareArrays(const QString& where, const QJsonArray& expected, const QJsonArray& got) {
        const auto count = std::max(expected.size(), got.size());
        for (auto i = decltype(count){0}; i < count; ++i)
            compare(QStringLiteral("%1[%2]").arg(where).arg(i),
                    i < expected.size() ? expected.at(i) : QJsonValue::Undefined,
                    i < got.size() ? got.at(i) : QJsonValue::Undefined);
    }

    static bool isFree(const QString& key, const QJsonObject& expected, const QJsonObject& got) {
        static const QStringList geometry{QStringLiteral("left"), QStringLiteral("top"), QStringLiteral("width"),
                                          QStringLiteral("height")};
        if (!expected.contains(key) || !got.contains(key))
            return false;
        if (expected.contains(QStringLiteral("reachable")) && geometry.contains(key))
            return true;
        if (expected.contains(QStringLiteral("cells")) && key == QStringLiteral("toprow"))
            return true;
        return (key == QStringLiteral("tooltip") && expected.value(key).toString().isEmpty()) ||
               (key == QStringLiteral("error") && expected.value(key).toString() == QStringLiteral("*"));
    }

    static bool sameValue(const QString& where, const QJsonValue& expected, const QJsonValue& got) {
        const bool onPage = where.startsWith(QStringLiteral("pages["));
        if (onPage && expected.isDouble() && got.isDouble())
            return std::abs(expected.toDouble() - got.toDouble()) <= pageTolerance;
        return expected == got;
    }
};

} // namespace

QStringList differences(const QJsonObject& expected, const QJsonObject& got) {
    Comparer comparer;
    comparer.compareObjects({}, expected, got);
    return comparer.found;
}

} // namespace scenarios
