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

/// Takes one character off a UTF-8 text that isn't at its end; each ill-formed byte counts as one replacement
/// character.
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

void decompose(char32_t c, std::vector<char32_t>& bases) {
    if (c < beyondAll && QChar::decompositionTag(c) == QChar::Canonical) {
        for (const uint part : QChar::decomposition(c).toUcs4())
            decompose(part, bases);
    } else if (c >= beyondAll || !QChar::isMark(c)) {
        bases.push_back(foldedCharacter(c));
    }
}

/// What the order needs to know of one character.
struct Letter {
    char32_t folded = 0;
    char32_t base = 0;          ///< the base letter if there is just one
    std::uint8_t baseCount = 0; ///< none for a combining mark, several for a composed syllable
    bool accented = false;      ///< a mark, or a letter that is composed of others
};

Letter makeLetter(char32_t c) {
    Letter letter;
    letter.folded = foldedCharacter(c);
    std::vector<char32_t> bases;
    decompose(letter.folded, bases);
    letter.baseCount = static_cast<std::uint8_t>(bases.size());
    letter.base = bases.empty() ? 0 : bases.front();
    letter.accented = bases.size() != 1 || letter.base != letter.folded;
    return letter;
}

/// The alphabets up to here (all of Latin, Greek, Cyrillic) are looked up; the rest is worked out each time.
constexpr char32_t tableEnd = 0x2000;
constexpr char32_t pageSize = 0x100;

/// A page is made when the first of its letters comes up: a start needs one or two.
Letter letterOf(char32_t c) {
    static std::array<std::vector<Letter>, tableEnd / pageSize> pages;
    if (c >= tableEnd)
        return makeLetter(c);
    std::vector<Letter>& page = pages[c / pageSize];
    if (page.empty()) {
        const char32_t first = c - c % pageSize;
        for (char32_t i = first; i < first + pageSize; ++i)
            page.push_back(makeLetter(i));
    }
    return page[c % pageSize];
}

/// Walks the base letters of a text.
class BaseLetters {
  public:
    BaseLetters(const char* p, const char* end) : p_(p), end_(end) {}

    /// The next base letter, or a negative number at the end.
    std::int32_t next() {
        if (pendingAt_ < pending_.size())
            return static_cast<std::int32_t>(pending_[pendingAt_++]);
        while (p_ < end_) {
            const char32_t c = takeCharacter(p_, end_);
            if (c < 0x80)
                return asciiFold[c];
            const Letter letter = letterOf(c);
            if (letter.baseCount == 1)
                return static_cast<std::int32_t>(letter.base);
            if (letter.baseCount > 1) {
                pending_.clear();
                decompose(letter.folded, pending_);
                pendingAt_ = 1;
                return static_cast<std::int32_t>(pending_.front());
            }
        }
        return -1;
    }

  private:
    const char* p_;
    const char* end_;
    std::vector<char32_t> pending_;
    std::size_t pendingAt_ = 0;
};

/// Sort value of a character among those with the same base: plain ones first.
std::uint32_t accentRank(char32_t c) {
    if (c < 0x80)
        return asciiFold[c];
    const Letter letter = letterOf(c);
    return static_cast<std::uint32_t>(letter.folded) | (letter.accented ? 0x1000000U : 0U);
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

int confronta(std::string_view textA, std::string_view textB) {
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
    // What lies before is equal on both levels, so the comparison may go on from here.
    return compareLetters(a, aEnd, b, bEnd);
}

int confrontaTesti(const QString& a, const QString& b) {
    return confronta(a.toStdString(), b.toStdString());
}

bool somiglia(std::string_view pattern, std::string_view text) {
    const char* p = pattern.data();
    const char* t = text.data();
    const char* const pEnd = p + pattern.size();
    const char* const tEnd = t + text.size();
    const char* behindStar = nullptr; // where to go on in the pattern if the text fails behind the last "*"
    const char* starText = nullptr;   // first character that this "*" hasn't swallowed yet
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
