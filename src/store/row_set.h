// Records of a table told by their numbers (rowid), which are small and close together: a bit for each.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <unordered_set>
#include <vector>

#include <QtGlobal>

namespace vanzer::store {

class InsiemeDiRighe {
  public:
    InsiemeDiRighe() = default;
    InsiemeDiRighe(std::initializer_list<qint64> rowids) {
        for (const qint64 rowid : rowids)
            insert(rowid);
    }

    /// False if it was there already.
    bool insert(qint64 rowid) {
        if (contains(rowid))
            return false;
        rows_.push_back(rowid);
        if (rowid < 0 || rowid >= mostBits)
            return others_.insert(rowid).second;
        const auto at = static_cast<std::size_t>(rowid);
        if (at >= bits_.size())
            bits_.resize(at + at / 2 + 64);
        bits_[at] = true;
        return true;
    }
    [[nodiscard]] bool contains(qint64 rowid) const {
        if (rowid < 0 || rowid >= mostBits)
            return others_.contains(rowid);
        const auto at = static_cast<std::size_t>(rowid);
        return at < bits_.size() && bits_[at];
    }
    [[nodiscard]] bool operator==(const InsiemeDiRighe& other) const {
        return rows_.size() == other.rows_.size() &&
               std::ranges::all_of(rows_, [&other](qint64 rowid) { return other.contains(rowid); });
    }
    /// In the order in which they came.
    [[nodiscard]] const std::vector<qint64>& righe() const { return rows_; }

  private:
    static constexpr qint64 mostBits = 10'000'000;

    std::vector<bool> bits_;
    std::unordered_set<qint64> others_; ///< numbers that nobody's table has
    std::vector<qint64> rows_;
};

} // namespace vanzer::store
