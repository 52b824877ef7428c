// SPDX-License-Identifier: MIT
#include "core/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include <QList>

namespace vanzer {

QString Left(const QString& s, qsizetype n) {
    return s.left(std::max<qsizetype>(n, 0));
}

QString Mid(const QString& s, qsizetype p) {
    return s.mid(std::max<qsizetype>(p, 1) - 1);
}

QString Mid(const QString& s, qsizetype p, qsizetype n) {
    return s.mid(std::max<qsizetype>(p, 1) - 1, std::max<qsizetype>(n, 0));
}

QStringView Mid(QStringView s, qsizetype p, qsizetype n) {
    return s.mid(std::max<qsizetype>(p, 1) - 1, std::max<qsizetype>(n, 0));
}

QString Right(const QString& s, qsizetype n) {
    return n <= 0 ? QString() : s.right(n);
}

QString Trim(const QString& s) {
    const QStringView trimmed = Trim(QStringView(s));
    return trimmed.size() == s.size() ? s : trimmed.toString();
}

QStringView Trim(QStringView s) {
    while (s.startsWith(u' '))
        s = s.mid(1);
    while (s.endsWith(u' '))
        s.chop(1);
    return s;
}

double Val(QStringView s) {
    std::array<char, 64> digits{};
    std::size_t n = 0;
    bool point = false;
    bool digit = false;
    for (const QChar c : s) {
        if (c == u' ')
            continue;
        const char16_t u = c.unicode();
        if (u >= u'0' && u <= u'9')
            digit = true;
        else if (u == u'.' && !point)
            point = true;
        else if (!((u == u'-' || u == u'+') && n == 0 && !point && !digit))
            break;
        if (u != u'+' && n < digits.size())
            digits[n++] = static_cast<char>(u);
    }
    if (!digit)
        return 0;
    double value = 0;
    std::from_chars(digits.data(), digits.data() + n, value);
    return value;
}

int roundToInt(double x) {
    if (!(x > -2147483648.0))
        return std::isnan(x) ? 0 : -2147483647 - 1;
    return x >= 2147483647.0 ? 2147483647 : static_cast<int>(std::nearbyint(x));
}

namespace {

template<typename Real> QString shortest(Real x, QChar decimalMark) {
    if (x == 0)
        return QStringLiteral("0");
    std::array<char, 512> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), x, std::chars_format::fixed);
    QString s = QString::fromLatin1(text.data(), end.ptr - text.data());
    if (decimalMark != u'.')
        s.replace(u'.', decimalMark);
    return s;
}

QString fillCharacter(const QString& fill) {
    const double code = Val(fill);
    return code > 9 ? QString(QChar(static_cast<char16_t>(code))) : fill.left(1);
}

bool isPlainLetter(QChar c) {
    const char16_t u = c.unicode();
    return (u >= u'A' && u <= u'Z') || (u >= u'a' && u <= u'z');
}

} // namespace

QString testoNumero(double x, QChar decimalMark) {
    return shortest(x, decimalMark);
}
QString testoNumero(float x, QChar decimalMark) {
    return shortest(x, decimalMark);
}

QString migliaia(double x) {
    const QString s = migliaiaZero(x);
    return s == u"0" ? QString() : s;
}

QString migliaiaZero(double x) {
    // Rounds halves away from zero.
    const auto whole = static_cast<qlonglong>(std::floor(std::fabs(x) + 0.5));
    std::array<char, 24> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), whole).ptr;
    const auto count = end - digits.data();
    std::array<char16_t, 40> out{};
    std::size_t n = 0;
    if (x < 0 && whole != 0)
        out[n++] = u'-';
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        if (i > 0 && (count - i) % 3 == 0)
            out[n++] = u'.';
        out[n++] = static_cast<char16_t>(digits[static_cast<std::size_t>(i)]);
    }
    return QString::fromUtf16(out.data(), static_cast<qsizetype>(n));
}

QString Zero(const QString& value, int width) {
    return Right(QString(width, u'0') + Trim(value), width);
}

QString Zero(double value, int width) {
    if (!(value >= 0 && value <= 1e9) || value != std::floor(value))
        return Zero(testoNumero(value), width);
    return Right(QString::number(static_cast<int>(value)).rightJustified(width, u'0'), width);
}

QString AggStr(const QString& s, int width, const QString& fill) {
    const QString with = fillCharacter(fill);
    return with.isEmpty() ? Left(s, width) : s.leftJustified(std::max(width, 0), with.front(), true);
}

QString AntStr(const QString& s, int width, const QString& fill) {
    return Right(fillCharacter(fill).repeated(width) + s, width);
}

double Maggiore(double a, double b) {
    return a >= b ? a : b;
}
double Minore(double a, double b) {
    return a <= b ? a : b;
}
int Maggiore(int a, int b) {
    return a >= b ? a : b;
}
int Minore(int a, int b) {
    return a <= b ? a : b;
}

Intorno intorno(float b, int tolerance) {
    const auto middle = static_cast<double>(b);
    return {static_cast<float>(middle - tolerance / 3.0), static_cast<float>(middle + tolerance)};
}

bool QuasiUguale(float a, float b, int tolerance) {
    return intorno(b, tolerance).contains(a);
}

QString LikeTesto(const QString& s) {
    const qsizetype bracket = s.indexOf(u'(');
    QString pattern = bracket < 0 ? s : s.left(bracket) + u'*';
    for (QChar& c : pattern) {
        static constexpr QStringView breaking = u"'=\\><[]\"";
        if (breaking.contains(c))
            c = u'?';
    }
    return pattern;
}

QString PrimoMaiuscolo(const QString& s, bool capitals) {
    QString result = s;
    for (qsizetype i = 0; i < result.size(); ++i) {
        if (i > 0 && isPlainLetter(result[i - 1]))
            result[i] = result[i].toLower();
        else if (i == 0 || capitals)
            result[i] = result[i].toUpper();
    }
    return result;
}

double ValoreSenzaPunti(const QString& s) {
    double value = 0;
    for (const QChar c : s) {
        if (c >= u'0' && c <= u'9')
            value = value * 10 + (c.unicode() - u'0');
    }
    return value;
}

QString maiuscolo(const QString& s) {
    QString result = s;
    for (QChar& c : result)
        c = c.toUpper();
    return result;
}

QString minuscolo(const QString& s) {
    QString result = s;
    for (QChar& c : result)
        c = c.toLower();
    return result;
}

QString senzaMaiuscole(const QString& s) {
    if (std::ranges::none_of(s, [](QChar c) { return c.isSurrogate(); })) {
        QString folded = s;
        for (QChar& c : folded)
            c = c.toCaseFolded();
        return folded;
    }
    QList<uint> characters = s.toUcs4();
    for (uint& c : characters)
        c = QChar::toCaseFolded(c);
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()), characters.size());
}

bool uguale(QStringView a, QStringView b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

bool beginsWith(QStringView s, QStringView start) {
    return s.startsWith(start, Qt::CaseInsensitive);
}

bool contains(QStringView s, QStringView part) {
    return s.contains(part, Qt::CaseInsensitive);
}

int posizione(QStringView s, QStringView part) {
    return static_cast<int>(s.indexOf(part, 0, Qt::CaseInsensitive)) + 1;
}

} // namespace vanzer
