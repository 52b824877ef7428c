// SPDX-License-Identifier: MIT
#include "exchange/place_patterns.h"

#include <bit>
#include <optional>

#include <QList>

#include "core/text.h"

namespace vanzer {

namespace {

constexpr std::size_t wordBits = 64;

char32_t folded(char32_t c) {
    return QChar::toCaseFolded(c);
}

/// 0 for A to 25 for Z, case ignored.
std::optional<std::size_t> letter(char32_t c) {
    if (c >= U'a' && c <= U'z')
        return c - U'a';
    return std::nullopt;
}

/// The same for A to Z alone. Other characters that case folding turns into one of these don't count.
std::optional<std::size_t> plainLetter(char32_t c) {
    return c < 0x80 ? letter(folded(c)) : std::nullopt;
}

} // namespace

QString modelloLuogo(const QString& place) {
    QList<uint> characters = place.toUcs4();
    for (uint& c : characters) {
        if (!plainLetter(c))
            c = U'?';
    }
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()), characters.size());
}

int LuoghiPerModello::add(const QString& text) {
    const QString plain = senzaMaiuscole(text);
    const auto next = static_cast<int>(known_.size());
    if (const auto known = known_.constFind(plain); known != known_.cend())
        return *known;
    known_.insert(plain, next);
    const QList<uint> characters = plain.toUcs4();
    const auto length = static_cast<std::size_t>(characters.size());
    Group& group = groups_[length];
    group.has.resize(length * letters);
    const std::size_t at = group.numbers.size();
    group.numbers.push_back(next);
    for (std::size_t i = 0; i < length; ++i) {
        if (const auto l = letter(characters[static_cast<qsizetype>(i)])) {
            Bits& bits = group.has[i * letters + *l];
            bits.resize(at / wordBits + 1);
            bits.back() |= std::uint64_t{1} << (at % wordBits);
        }
    }
    return next;
}

void LuoghiPerModello::find(const QString& place, const std::function<bool(int)>& found) const {
    const QList<uint> characters = place.toUcs4();
    const auto known = groups_.find(static_cast<std::size_t>(characters.size()));
    if (known == groups_.end())
        return;
    const Group& group = known->second;
    std::vector<const Bits*> wanted;
    std::size_t words = (group.numbers.size() + wordBits - 1) / wordBits;
    for (std::size_t i = 0; i < static_cast<std::size_t>(characters.size()); ++i) {
        if (const auto l = plainLetter(characters[static_cast<qsizetype>(i)])) {
            wanted.push_back(&group.has[i * letters + *l]);
            words = std::min(words, wanted.back()->size());
        }
    }
    for (std::size_t word = 0; word < words; ++word) {
        std::uint64_t all = ~std::uint64_t{0};
        if (const std::size_t rest = group.numbers.size() - word * wordBits; rest < wordBits)
            all >>= wordBits - rest;
        for (std::size_t i = 0; i < wanted.size() && all != 0; ++i)
            all &= (*wanted[i])[word];
        for (; all != 0; all &= all - 1) {
            if (!found(group.numbers[word * wordBits + static_cast<std::size_t>(std::countr_zero(all))]))
                return;
        }
    }
}

bool LuoghiPerModello::trova(const QString& place) const {
    bool any = false;
    find(place, [&any](int) {
        any = true;
        return false;
    });
    return any;
}

} // namespace vanzer
