// SPDX-License-Identifier: MIT
// Splits a line of text into columns at its separator.
#pragma once

#include <array>

#include <QString>

namespace vanzer {

/// Columns count from 1 to `numero`. The rest of `testo` is empty.
struct Colonne {
    static constexpr int massimo = 100;

    std::array<QString, massimo + 1> testo;
    int numero = 0;

    [[nodiscard]] QString& operator()(int i) { return testo[static_cast<std::size_t>(i)]; }
    [[nodiscard]] const QString& operator()(int i) const { return testo[static_cast<std::size_t>(i)]; }
};

/// Splits `line` into columns. The separator is the first of these that the line contains: character 255, tab, comma,
/// semicolon, exclamation mark; tab if it contains none. Appends one separator to `line`. Quotes and control characters
/// are dropped and columns are trimmed. Columns after the hundredth are lost.
void SeparaColonne(QString& line, Colonne& colonne);

} // namespace vanzer
