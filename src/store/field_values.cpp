// SPDX-License-Identifier: MIT
#include "store/field_values.h"

#include <algorithm>

#include "core/text.h"

namespace vanzer::store {

namespace {

// Doesn't split a surrogate pair.
QString cut(const QString& text, int size) {
    if (text.size() <= size)
        return text;
    const bool tornPair = size > 0 && text[size - 1].isHighSurrogate();
    return text.left(tornPair ? size - 1 : size);
}

bool isYesWord(const QString& text) {
    const QString word = Trim(text);
    return uguale(word, u"True") || uguale(word, u"Vero") || word == u"-1" || word == u"1";
}

qint64 integer16(double x) {
    return std::clamp(roundToInt(x), -32768, 32767);
}

} // namespace

Valore valoreDa(const QString& text, const FieldDef& field) {
    switch (field.kind) {
    case FieldKind::Text: {
        QString kept = field.size > 0 ? cut(text, field.size) : text;
        return kept.isEmpty() ? QStringLiteral(" ") : std::move(kept);
    }
    case FieldKind::YesNo: return qint64{isYesWord(text)};
    case FieldKind::Binary: return text.toUtf8();
    case FieldKind::DateTime: return text;
    case FieldKind::Integer16: return integer16(Val(text));
    case FieldKind::Single: return static_cast<double>(static_cast<float>(Val(text)));
    case FieldKind::Double: break;
    }
    return Val(text);
}

Valore valoreIniziale(const FieldDef& field) {
    return field.kind == FieldKind::YesNo ? Valore(qint64{0}) : Valore();
}

QString testoDa(const Valore& value, FieldKind kind) {
    if (kind == FieldKind::YesNo)
        return siNoDa(value) ? QStringLiteral("True") : QStringLiteral("False");
    if (const auto* const text = std::get_if<QString>(&value))
        return *text;
    if (const auto* const whole = std::get_if<qint64>(&value))
        return QString::number(*whole);
    if (const auto* const fraction = std::get_if<double>(&value))
        return kind == FieldKind::Single ? testoNumero(static_cast<float>(*fraction)) : testoNumero(*fraction);
    if (const auto* const bytes = std::get_if<QByteArray>(&value))
        return QString::fromUtf8(*bytes);
    return {};
}

bool siNoDa(const Valore& value) {
    if (const auto* const whole = std::get_if<qint64>(&value))
        return *whole != 0;
    const auto* const text = std::get_if<QString>(&value);
    return text != nullptr && isYesWord(*text);
}

Valore adattato(const Valore& value, FieldKind from, const FieldDef& to) {
    if (std::holds_alternative<std::monostate>(value))
        return valoreIniziale(to);
    if (from == to.kind && from != FieldKind::Text)
        return value;
    return valoreDa(testoDa(value, from), to);
}

} // namespace vanzer::store
