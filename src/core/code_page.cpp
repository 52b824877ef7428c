// SPDX-License-Identifier: MIT
#include "core/code_page.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include <QList>

namespace vanzer {

namespace {

constexpr int firstOwn = 0x80; // from here to 0x9F the code page differs from Latin-1
constexpr std::array<char16_t, 32> own{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                       0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                       0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                       0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QChar decoded(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    const auto i = static_cast<std::size_t>(code) - firstOwn;
    return i < own.size() ? QChar(own[i]) : QChar(static_cast<char16_t>(code));
}

/// The byte of a character; nothing if the code page lacks it.
std::optional<char> placeOf(char32_t c) {
    if (c < firstOwn)
        return static_cast<char>(c);
    const auto found = std::find(own.begin(), own.end(), c);
    if (found != own.end())
        return static_cast<char>(firstOwn + (found - own.begin()));
    if (c >= firstOwn + own.size() && c <= 0xFF)
        return static_cast<char>(c);
    return std::nullopt;
}

/// Letters with a stroke. Unicode has no decomposition for them.
constexpr std::array<std::pair<char32_t, char>, 10> strokes{{{U'Ł', 'L'},
                                                             {U'ł', 'l'},
                                                             {U'Đ', 'D'},
                                                             {U'đ', 'd'},
                                                             {U'Ħ', 'H'},
                                                             {U'ħ', 'h'},
                                                             {U'Ŧ', 'T'},
                                                             {U'ŧ', 't'},
                                                             {U'ı', 'i'},
                                                             {U'ƶ', 'z'}}};

/// A character as a text. QString::fromUcs4 would drop a byte order mark; this keeps it.
QString letter(char32_t c) {
    return QStringView(QChar::fromUcs4(c)).toString();
}

char encoded(char32_t c) {
    if (const auto place = placeOf(c))
        return *place;
    for (const auto& [struck, base] : strokes) {
        if (struck == c)
            return base;
    }
    const QString parts = letter(c).normalized(QString::NormalizationForm_D);
    return placeOf(parts.toUcs4().front()).value_or('?');
}

bool isAscii(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < firstOwn; });
}

} // namespace

QString fromCodePage(QByteArrayView bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), decoded);
    return text;
}

QByteArray toCodePage(const QString& text) {
    if (isAscii(text))
        return text.toLatin1();
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const char32_t c : text.normalized(QString::NormalizationForm_C).toUcs4())
        bytes.append(encoded(c));
    return bytes;
}

std::vector<LetteraSostituita> lettereSostituite(const QString& text) {
    std::vector<LetteraSostituita> letters;
    if (isAscii(text))
        return letters;
    for (const char32_t c : text.normalized(QString::NormalizationForm_C).toUcs4()) {
        if (placeOf(c))
            continue;
        const LetteraSostituita replaced{letter(c), decoded(encoded(c))};
        if (std::find(letters.begin(), letters.end(), replaced) == letters.end())
            letters.push_back(replaced);
    }
    return letters;
}

} // namespace vanzer
