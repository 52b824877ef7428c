// The shared column buffer: a line of text taken apart at its separator.
#pragma once

#include <array>

#include <QString>

namespace vanzer {

/// The columns are 1 to `numero`; what lies behind is empty.
struct Colonne {
    static constexpr int massimo = 100;

    std::array<QString, massimo + 1> testo;
    int numero = 0;

    [[nodiscard]] QString& operator()(int i) { return testo[static_cast<std::size_t>(i)]; }
    [[nodiscard]] const QString& operator()(int i) const { return testo[static_cast<std::size_t>(i)]; }
};

/// Takes `line` apart at the first of these separators that it holds: character 255, tab, comma, semicolon, exclamation
/// mark (tab if there is none). One separator is added to the line. Quotes and control characters are left out, columns
/// are trimmed, what lies behind the hundredth is lost.
void SeparaColonne(QString& line, Colonne& colonne);

} // namespace vanzer
