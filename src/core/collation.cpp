// SPDX-License-Identifier: MIT
#include "core/collation.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include <QChar>
#include <QList>
#include <QString>

namespace vanzer {

namespace {

constexpr char32_t replacement = 0xfffd;
constexpr char32_t beyondAll = 0x110000;

constexpr std::array<unsigned char, 128> makeAsciiFold() {
    std::array<unsigned char, 128> fold{};
    for (unsigned c = 0; c < 128; ++c)
        fold[c] = static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c + 32 : c);
    return fold;
}

constexpr auto asciiFold = makeAsciiFold();

constexpr unsigned char byteAt(const char* p) {
    return static_cast<unsigned char>(*p);
}
constexpr bool isAscii(const char* p) {
    return byteAt(p) < 0x80;
}

/// Reads one character of UTF-8 text and moves `p` past it; `p` must be before `end`. An ill-formed byte counts as one
/// replacement character.
char32_t takeCharacter(const char*& p, const char* end) {
    const unsigned lead = byteAt(p++);
    if (lead < 0x80)
        return lead;
    if (lead == byteAt(&oltreOgniLettera))
        return beyondAll;
    const int more = lead >= 0xf0 && lead < 0xf5   ? 3
                     : lead >= 0xe0 && lead < 0xf0 ? 2
                     : lead >= 0xc2 && lead < 0xe0 ? 1
                                                   : 0;
    if (more == 0 || end - p < more)
        return replacement;
    char32_t c = lead & (0x3fU >> more);
    for (int i = 0; i < more; ++i) {
        if ((byteAt(p + i) & 0xc0) != 0x80)
            return replacement;
        c = (c << 6) | (byteAt(p + i) & 0x3fU);
    }
    p += more;
    return c;
}

char32_t foldedCharacter(char32_t c) {
    if (c < 0x80)
        return asciiFold[c];
    return c < beyondAll ? QChar::toCaseFolded(c) : c;
}

/// Appends the folded base letters of a character: none for a combining mark, several for a composed syllable.
void decompose(char32_t c, std::vector<char32_t>& bases) {
    if (c < beyondAll && QChar::decompositionTag(c) == QChar::Canonical) {
        for (const uint part : QChar::decomposition(c).toUcs4())
            decompose(part, bases);
    } else if (c >= beyondAll || !QChar::isMark(c)) {
        bases.push_back(foldedCharacter(c));
    }
}

/// Walks the base letters of a text.
class BaseLetters {
  public:
    BaseLetters(const char* p, const char* end) : p_(p), end_(end) {}

    /// The next base letter, or a negative number at the end.
    std::int32_t next() {
        while (pendingAt_ == pending_.size()) {
            if (p_ == end_)
                return -1;
            const char32_t c = takeCharacter(p_, end_);
            if (c < 0x80)
                return asciiFold[c];
            pending_.clear();
            pendingAt_ = 0;
            decompose(foldedCharacter(c), pending_);
        }
        return static_cast<std::int32_t>(pending_[pendingAt_++]);
    }

  private:
    const char* p_;
    const char* end_;
    std::vector<char32_t> pending_;
    std::size_t pendingAt_ = 0;
};

/// Sort value of a character among those with the same base: plain ones first.
std::uint32_t accentRank(char32_t c) {
    const char32_t folded = foldedCharacter(c);
    const bool accented = folded >= 0x80 && folded < beyondAll &&
                          (QChar::decompositionTag(folded) == QChar::Canonical || QChar::isMark(folded));
    return static_cast<std::uint32_t>(folded) | (accented ? 0x1000000U : 0U);
}

int compareAccents(const char* a, const char* aEnd, const char* b, const char* bEnd) {
    while (a < aEnd && b < bEnd) {
        const std::uint32_t rankA = accentRank(takeCharacter(a, aEnd));
        const std::uint32_t rankB = accentRank(takeCharacter(b, bEnd));
        if (rankA != rankB)
            return rankA < rankB ? -1 : 1;
    }
    return static_cast<int>(a < aEnd) - static_cast<int>(b < bEnd);
}

int compareLetters(const char* a, const char* aEnd, const char* b, const char* bEnd) {
    BaseLetters lettersA(a, aEnd);
    BaseLetters lettersB(b, bEnd);
    for (;;) {
        const std::int32_t baseA = lettersA.next();
        const std::int32_t baseB = lettersB.next();
        if (baseA != baseB)
            return baseA < baseB ? -1 : 1;
        if (baseA < 0)
            return compareAccents(a, aEnd, b, bEnd);
    }
}

} // namespace

int compare(std::string_view textA, std::string_view textB) {
    const char* a = textA.data();
    const char* b = textB.data();
    const char* const aEnd = a + textA.size();
    const char* const bEnd = b + textB.size();
    for (; a < aEnd && b < bEnd && isAscii(a) && isAscii(b); ++a, ++b) {
        const int difference = asciiFold[byteAt(a)] - asciiFold[byteAt(b)];
        if (difference != 0)
            return difference;
    }
    if (a == aEnd && b == bEnd)
        return 0;
    // The texts are equal on both levels up to here, so the comparison can start here.
    return compareLetters(a, aEnd, b, bEnd);
}

int compareTexts(const QString& a, const QString& b) {
    return compare(a.toStdString(), b.toStdString());
}

bool resembles(std::string_view pattern, std::string_view text) {
    const char* p = pattern.data();
    const char* t = text.data();
    const char* const pEnd = p + pattern.size();
    const char* const tEnd = t + text.size();
    const char* behindStar = nullptr; // where to resume in the pattern if the part after the last "*" doesn't match
    const char* starText = nullptr;   // the first character that this "*" doesn't cover yet
    while (t < tEnd) {
        if (p < pEnd && *p == '*') {
            behindStar = ++p;
            starText = t;
            continue;
        }
        if (p < pEnd) {
            const char* pNext = p;
            const char* tNext = t;
            const char32_t wanted = takeCharacter(pNext, pEnd);
            const char32_t found = takeCharacter(tNext, tEnd);
            if (wanted == U'?' || wanted == found || foldedCharacter(wanted) == foldedCharacter(found)) {
                p = pNext;
                t = tNext;
                continue;
            }
        }
        if (behindStar == nullptr)
            return false;
        takeCharacter(starText, tEnd);
        t = starText;
        p = behindStar;
    }
    return std::all_of(p, pEnd, [](char c) { return c == '*'; });
}

QByteArray lettereBase(QStringView text) {
    const QByteArray utf8 = text.toUtf8();
    BaseLetters letters(utf8.constData(), utf8.constData() + utf8.size());
    std::vector<char32_t> bases;
    for (std::int32_t base = letters.next(); base >= 0; base = letters.next())
        bases.push_back(static_cast<char32_t>(base));
    return QString::fromUcs4(bases.data(), static_cast<qsizetype>(bases.size())).toUtf8();
}

} // namespace vanzer
