// The 8-bit code page 1252 of the text files.
#pragma once

#include <vector>

#include <QByteArray>
#include <QString>

namespace vanzer {

/// Every byte has a character: the five that the code page leaves free are the controls of that number.
[[nodiscard]] QString fromCodePage(QByteArrayView bytes);
/// A letter that has no place in the code page becomes its base letter, anything else "?".
[[nodiscard]] QByteArray toCodePage(const QString& text);

/// A letter that has no place in the code page, and what is written for it.
struct LetteraSostituita {
    QString lettera;
    QChar scritta;

    friend bool operator==(const LetteraSostituita&, const LetteraSostituita&) = default;
};
/// Those of a text, each once, in the order in which they come.
[[nodiscard]] std::vector<LetteraSostituita> lettereSostituite(const QString& text);

} // namespace vanzer
