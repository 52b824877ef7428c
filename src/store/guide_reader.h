// SPDX-License-Identifier: MIT
// Reads the guide's entries of a place. Loading, calculating and storing a trip ask for the same places again, so
// entries are cached until the guide is written.
#pragma once

#include <functional>
#include <optional>
#include <unordered_map>
#include <vector>

#include <QString>

#include "core/guide_entry.h"
#include "store/database.h"
#include "store/row_set.h"

namespace vanzer::store {

/// Entries by place or pattern. Pointers to them hold until the cache is cleared.
using MemoriaGuida = std::unordered_map<QString, VociGuida>;

class LettoreGuida final : public LiveSet {
  public:
    explicit LettoreGuida(Database& archive);
    ~LettoreGuida() override;

    /// False after the archive was closed: nothing may be read then.
    [[nodiscard]] bool aperto() const { return database_ != nullptr; }

    /// The entries of exactly this place, case ignored, sorted by category, then by descending time, then by group. The
    /// reference holds until the guide is written or a later read finds the cache full and clears it.
    [[nodiscard]] const VociGuida& readPlace(const QString& place);
    /// The entries whose place matches the pattern, in the order in which they were added.
    [[nodiscard]] const VociGuida& readPattern(const QString& pattern);

    /// True if exactly these entries are known to have the mark of use.
    [[nodiscard]] bool areMarked(const InsiemeDiRighe& entries) const { return marked_ == entries; }
    /// Runs `write`, which sets the marks of use to exactly these entries and writes nothing else of the guide. The
    /// cache stays valid: cached entries don't include marks.
    void writeMarks(const InsiemeDiRighe& entries, const std::function<void()>& write);

    void beforeWriting(const TableInfo& table) override;
    void rolledBack() noexcept override { forget(); }
    void abandon() noexcept override;

  private:
    void makeRoom(std::size_t entries);
    void forget() noexcept;

    Database* database_;
    MemoriaGuida places_;
    MemoriaGuida patterns_;
    std::size_t kept_ = 0; ///< number of cached entries
    std::optional<InsiemeDiRighe> marked_;
    bool onlyMarks_ = false;
};

} // namespace vanzer::store
