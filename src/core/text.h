// SPDX-License-Identifier: MIT
// Text helpers for all rooms. Positions count from 1 (Left, Mid, Right). Functions that ignore case use simple folding,
// letter by letter: "ß" stays one letter and accents count.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

#include <QString>
#include <QStringView>

namespace vanzer {

/// The first n characters, or the whole text if it is shorter.
[[nodiscard]] QString Left(const QString& s, qsizetype n);
/// From position p (from 1) to the end.
[[nodiscard]] QString Mid(const QString& s, qsizetype p);
/// n characters from position p (from 1).
[[nodiscard]] QString Mid(const QString& s, qsizetype p, qsizetype n);
[[nodiscard]] QStringView Mid(QStringView s, qsizetype p, qsizetype n);
/// The last n characters.
[[nodiscard]] QString Right(const QString& s, qsizetype n);
/// Without blanks at either end; tabs and line breaks stay.
[[nodiscard]] QString Trim(const QString& s);
[[nodiscard]] QStringView Trim(QStringView s);

/// The number at the start of a text, as long as possible. Blanks are skipped, the decimal mark is a point. 0 if there
/// is no number.
[[nodiscard]] double Val(QStringView s);

/// Rounds towards minus infinity.
[[nodiscard]] inline double Int(double x) {
    // A fast path for numbers that fit into a whole number: std::floor may be a library call.
    constexpr double wide = 4e18;
    if (!(x > -wide && x < wide))
        return std::floor(x);
    const auto whole = static_cast<double>(static_cast<long long>(x));
    return whole > x ? whole - 1 : whole;
}
/// Rounds to the nearest whole number, halves to the even one.
[[nodiscard]] int roundToInt(double x);
/// The sum of two whole numbers, clamped to the range of int.
[[nodiscard]] inline int addToInt(std::int64_t a, std::int64_t b) {
    return static_cast<int>(std::clamp<std::int64_t>(a + b, INT32_MIN, INT32_MAX));
}

/// Shortest decimal text that reads back as the same number: of single precision for a float.
[[nodiscard]] QString testoNumero(double x, QChar decimalMark = u'.');
[[nodiscard]] QString testoNumero(float x, QChar decimalMark = u'.');

/// Rounded to a whole number, with points between the thousands. 0 becomes an empty text.
[[nodiscard]] QString migliaia(double x);
/// The same, but 0 becomes "0".
[[nodiscard]] QString migliaiaZero(double x);

/// The trimmed text, padded with zeros on the left and cut to its last `width` characters.
[[nodiscard]] QString Zero(const QString& value, int width);
[[nodiscard]] QString Zero(double value, int width);

/// Pads a text on the right and cuts it to `width`. A `fill` that is a number above 9 is a character code, else its
/// first character is used.
[[nodiscard]] QString AggStr(const QString& s, int width, const QString& fill);
/// Pads a text on the left and keeps the last `width` characters. `fill` is as in AggStr.
[[nodiscard]] QString AntStr(const QString& s, int width, const QString& fill);

[[nodiscard]] double Maggiore(double a, double b);
[[nodiscard]] double Minore(double a, double b);
[[nodiscard]] int Maggiore(int a, int b);
[[nodiscard]] int Minore(int a, int b);

/// A range of numbers, both ends included.
struct Intorno {
    float da = 0;
    float a = 0;
    [[nodiscard]] bool contains(float x) const { return da <= x && x <= a; }
};
/// The range from b - `tolerance` / 3 to b + `tolerance`, in single precision.
[[nodiscard]] Intorno intorno(float b, int tolerance);
[[nodiscard]] bool QuasiUguale(float a, float b, int tolerance);

/// A LIKE pattern for a name. The name is cut at the first "(", where "*" is put. Characters that would break a query
/// become "?".
[[nodiscard]] QString LikeTesto(const QString& s);

/// Normalises capitals. The first letter becomes upper case, a letter after an unaccented letter lower case. A letter
/// after anything else becomes upper case if `capitals` is true, else it stays.
[[nodiscard]] QString PrimoMaiuscolo(const QString& s, bool capitals);

/// The number formed by the digits of a text; everything else is skipped.
[[nodiscard]] double ValoreSenzaPunti(const QString& s);

/// Upper and lower case, letter by letter: the length never changes.
[[nodiscard]] QString maiuscolo(const QString& s);
[[nodiscard]] QString minuscolo(const QString& s);

/// The case-folded text: two texts are equal without regard to case exactly if their folded forms are equal.
[[nodiscard]] QString senzaMaiuscole(const QString& s);

/// Comparisons that ignore case.
[[nodiscard]] bool uguale(QStringView a, QStringView b);
[[nodiscard]] bool beginsWith(QStringView s, QStringView start);
[[nodiscard]] bool contains(QStringView s, QStringView part);
/// Position (from 1) of the first `part` in `s`, case ignored; 0 if there is none.
[[nodiscard]] int posizione(QStringView s, QStringView part);

} // namespace vanzer
