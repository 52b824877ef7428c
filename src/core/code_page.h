// SPDX-License-Identifier: MIT
// The 8-bit code page 1252 of the text files.
#pragma once

#include <vector>

#include <QByteArray>
#include <QString>

namespace vanzer {

/// Decodes bytes of code page 1252. Never fails: the five bytes without a letter become the control characters of the
/// same number.
[[nodiscard]] QString fromCodePage(QByteArrayView bytes);
/// Encodes a text. A letter that the code page lacks becomes its base letter, any other character "?".
[[nodiscard]] QByteArray toCodePage(const QString& text);

/// A letter that the code page lacks, and the character that is written instead.
struct LetteraSostituita {
    QString lettera;
    QChar scritta;

    friend bool operator==(const LetteraSostituita&, const LetteraSostituita&) = default;
};
/// The replaced letters of a text, each once, in the order of their first use.
[[nodiscard]] std::vector<LetteraSostituita> lettereSostituite(const QString& text);

} // namespace vanzer
