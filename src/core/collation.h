// How the system sorts texts, and the archive's LIKE, both on UTF-8.
//
// The order looks first at the letters without regard to case and accents: canonical decomposition, base letters,
// simple folding per character ("ß" stays one letter), combining marks passed over. Texts that tie there are compared
// letter by letter in folded form, an unaccented letter before an accented one. Two texts are equal exactly if their
// folded forms are.
#pragma once

#include <string_view>

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace vanzer {

/// Below, at or above 0 as `a` sorts before, with or behind `b`.
[[nodiscard]] int compare(std::string_view a, std::string_view b);
[[nodiscard]] int compareTexts(const QString& a, const QString& b);

/// True if `text` has the form of `pattern`: "*" any text, "?" one character, nothing else is special; case is ignored,
/// accents count. Never more than pattern length times text length steps.
[[nodiscard]] bool resembles(std::string_view pattern, std::string_view text);

/// The base letters of a text, folded: what the order looks at first. Every text that begins with `text`, in any case,
/// sorts from this up to this with `oltreOgniLettera` behind it.
[[nodiscard]] QByteArray lettereBase(QStringView text);

/// A byte that no UTF-8 text holds; it sorts behind every letter.
inline constexpr char oltreOgniLettera = '\xff';

} // namespace vanzer
