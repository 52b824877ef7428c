// Text helpers of the whole system. Positions count from 1 (Left, Mid, Right), case is ignored letter by letter (simple
// folding: "ß" stays one letter, an accent counts).
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

#include <QString>
#include <QStringView>

namespace vanzer {

/// The first n characters; all of the text if it is shorter.
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

/// The longest leading number: blanks are skipped, the point is the decimal mark, 0 for anything else.
[[nodiscard]] double Val(QStringView s);

/// Rounding towards minus infinity.
[[nodiscard]] inline double Int(double x) {
    // Every number of a trip is far from the ends of a whole number; the library's floor is a call.
    constexpr double wide = 4e18;
    if (!(x > -wide && x < wide))
        return std::floor(x);
    const auto whole = static_cast<double>(static_cast<long long>(x));
    return whole > x ? whole - 1 : whole;
}
/// Rounding of a fraction that is assigned to a whole number: to the nearest, halves to the even one.
[[nodiscard]] int roundToInt(double x);
/// The sum of two whole numbers; beyond the greatest or the least one it stays there.
[[nodiscard]] inline int addToInt(std::int64_t a, std::int64_t b) {
    return static_cast<int>(std::clamp<std::int64_t>(a + b, INT32_MIN, INT32_MAX));
}

/// Shortest decimal form of a number, with the given decimal mark. A float keeps a float's digits.
[[nodiscard]] QString testoNumero(double x, QChar decimalMark = u'.');
[[nodiscard]] QString testoNumero(float x, QChar decimalMark = u'.');

/// Whole number with points as thousands marks; 0 is the empty text ("#,###").
[[nodiscard]] QString migliaia(double x);
/// The same, but 0 is "0" ("#,##0").
[[nodiscard]] QString migliaiaZero(double x);

/// The text without outer blanks, with zeros in front, cut to its last `width` characters.
[[nodiscard]] QString Zero(const QString& value, int width);
[[nodiscard]] QString Zero(double value, int width);

/// Padded on the right and cut to `width`. A fill above 9 as a number is a character code, else its first character.
[[nodiscard]] QString AggStr(const QString& s, int width, const QString& fill);
/// Padded on the left, the last `width` characters kept.
[[nodiscard]] QString AntStr(const QString& s, int width, const QString& fill);

[[nodiscard]] double Maggiore(double a, double b);
[[nodiscard]] double Minore(double a, double b);
[[nodiscard]] int Maggiore(int a, int b);
[[nodiscard]] int Minore(int a, int b);

/// What counts as a value, both ends included.
struct Intorno {
    float da = 0;
    float a = 0;
    [[nodiscard]] bool contains(float x) const { return da <= x && x <= a; }
};
/// From a third of `tolerance` below b to all of it above b; bounds in single precision.
[[nodiscard]] Intorno intorno(float b, int tolerance);
[[nodiscard]] bool QuasiUguale(float a, float b, int tolerance);

/// A name as a LIKE pattern: cut at the first "(" with "*" behind, and "?" for every character that would break a
/// query.
[[nodiscard]] QString LikeTesto(const QString& s);

/// Capitals normalised: the first letter upper, letters behind an unaccented letter lower, letters behind anything
/// else upper if `capitals` is true, else as they are.
[[nodiscard]] QString PrimoMaiuscolo(const QString& s, bool capitals);

/// The number made of the digits alone.
[[nodiscard]] double ValoreSenzaPunti(const QString& s);

/// Upper and lower case letter by letter, so that the length never changes.
[[nodiscard]] QString maiuscolo(const QString& s);
[[nodiscard]] QString minuscolo(const QString& s);

/// With case put away: two texts are equal without regard to case exactly if these are equal.
[[nodiscard]] QString senzaMaiuscole(const QString& s);

/// Equal, beginning, holding: all without regard to case.
[[nodiscard]] bool uguale(QStringView a, QStringView b);
[[nodiscard]] bool beginsWith(QStringView s, QStringView start);
[[nodiscard]] bool contains(QStringView s, QStringView part);
/// Position from 1 of the first occurrence, case ignored; 0 if there is none.
[[nodiscard]] int posizione(QStringView s, QStringView part);

} // namespace vanzer
