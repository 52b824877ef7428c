// SPDX-License-Identifier: MIT
// A set of records of a table, by rowid.
#pragma once

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

    /// False if the set had it already.
    bool insert(qint64 rowid) {
        const bool added = known_.insert(rowid).second;
        if (added)
            rows_.push_back(rowid);
        return added;
    }
    [[nodiscard]] bool contains(qint64 rowid) const { return known_.contains(rowid); }
    [[nodiscard]] bool operator==(const InsiemeDiRighe& other) const { return known_ == other.known_; }
    /// The rowids in the order in which they were inserted.
    [[nodiscard]] const std::vector<qint64>& righe() const { return rows_; }

  private:
    std::unordered_set<qint64> known_;
    std::vector<qint64> rows_;
};

} // namespace vanzer::store
