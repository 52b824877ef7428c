// Places found by patterns. A place of the guide is looked for among others by its letters A to Z alone: every other
// character of it (blank, apostrophe, accented letter) stands for any one character, so that names written differently
// meet. Case is ignored.
//
// An archive of 100,000 legs can't be gone through for each of 100,000 entries, and an index by the beginning doesn't
// help a name that begins with such a character. So the texts are told by bits: for each length, each position and each
// letter, one bit for every text that has the letter there. A pattern is the intersection of its letters' bits.
#pragma once

#include <cstdint>
#include <functional>
#include <unordered_map>
#include <vector>

#include <QHash>
#include <QString>

namespace vanzer {

/// The pattern of a place as a query has it: each character that isn't a letter A to Z becomes "?".
[[nodiscard]] QString modelloLuogo(const QString& place);

class LuoghiPerModello {
  public:
    /// The number of the text, from 0; a text that differs in case alone has the same one.
    int add(const QString& text);

    /// Calls `found` with the number of each text that has the form of the place's pattern, until it returns false.
    void find(const QString& place, const std::function<bool(int)>& found) const;
    [[nodiscard]] bool trova(const QString& place) const;

  private:
    static constexpr std::size_t letters = 26;
    using Bits = std::vector<std::uint64_t>;

    /// The texts of one length. Bits may end before the last text: what is missing is 0.
    struct Group {
        std::vector<int> numbers;
        std::vector<Bits> has; ///< by position and letter
    };

    QHash<QString, int> known_;
    std::unordered_map<std::size_t, Group> groups_; ///< by length in characters
};

} // namespace vanzer
