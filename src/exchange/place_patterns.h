// SPDX-License-Identifier: MIT
// Finds places by patterns. Only the letters A to Z of a pattern must be equal, case ignored. Any other character
// (blank, apostrophe, accented letter) stands for any one character, so that different spellings of a name meet.
//
// An archive may have 100,000 legs and 100,000 entries, which is too much to compare each with each. An index by the
// first characters doesn't help a name that begins with such a character. So the places are kept as bits: for each
// length, each position and each letter there is one bit for every text that has the letter there. The places of a
// pattern are the intersection of its letters' bits.
#pragma once

#include <cstdint>
#include <functional>
#include <unordered_map>
#include <vector>

#include <QHash>
#include <QString>

namespace vanzer {

/// The query pattern of a place: each character except the letters A to Z becomes "?".
[[nodiscard]] QString modelloLuogo(const QString& place);

class LuoghiPerModello {
  public:
    /// Adds a text and returns its number, from 0. Texts that differ only in case have the same number.
    int add(const QString& text);

    /// Calls `found` with the number of each text that fits the place's pattern, until `found` returns false.
    void find(const QString& place, const std::function<bool(int)>& found) const;
    [[nodiscard]] bool trova(const QString& place) const;

  private:
    static constexpr std::size_t letters = 26;
    using Bits = std::vector<std::uint64_t>;

    /// The texts of one length. Missing bits at the end count as 0.
    struct Group {
        std::vector<int> numbers;
        std::vector<Bits> has; ///< by position and letter
    };

    QHash<QString, int> known_;
    std::unordered_map<std::size_t, Group> groups_; ///< by length in characters
};

} // namespace vanzer
