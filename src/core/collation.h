// SPDX-License-Identifier: MIT
// The sort order of texts, and LIKE for the archive. Both work on UTF-8.
//
// The order has two levels. The first ignores case and accents: it decomposes each character canonically, skips
// combining marks and folds case per character ("ß" stays one letter). Texts that tie there are compared letter by
// letter in folded form, with an unaccented letter before an accented one. Two texts are equal exactly if their folded
// forms are.
#pragma once

#include <string_view>

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace vanzer {

/// Negative if `a` sorts before `b`, 0 if they are equal, positive if `a` sorts after `b`.
[[nodiscard]] int compare(std::string_view a, std::string_view b);
[[nodiscard]] int compareTexts(const QString& a, const QString& b);

/// True if `text` matches `pattern`. "*" stands for any text and "?" for one character; nothing else is special. Case
/// is ignored, accents count. Takes at most pattern length times text length steps.
[[nodiscard]] bool resembles(std::string_view pattern, std::string_view text);

/// The folded base letters of a text: the key of the first level of the order. Every text that begins with `text`, in
/// any case, sorts between this key and this key followed by `oltreOgniLettera`.
[[nodiscard]] QByteArray lettereBase(QStringView text);

/// A byte that never occurs in UTF-8 and sorts after every letter.
inline constexpr char oltreOgniLettera = '\xff';

} // namespace vanzer
