// The guide's entries of a place. A trip asks for the same places again and again (to load it, to calculate it, to
// store it), so what was read is kept until the guide is written.
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

/// By place or pattern; the entries stay where they are until all is forgotten.
using MemoriaGuida = std::unordered_map<QString, VociGuida>;

class LettoreGuida final : public LiveSet {
  public:
    explicit LettoreGuida(Database& archive);
    ~LettoreGuida() override;

    /// False once its archive was closed: nothing may be read any more.
    [[nodiscard]] bool aperto() const { return database_ != nullptr; }

    /// The entries of exactly this place, case ignored: by category, the longest first, then by group. They hold until
    /// the guide is written, or so much was read that what is kept is forgotten.
    [[nodiscard]] const VociGuida& readPlace(const QString& place);
    /// The entries whose place matches the pattern, in the order in which they were added.
    [[nodiscard]] const VociGuida& readPattern(const QString& pattern);

    /// Whether exactly these entries are known to carry the mark of use.
    [[nodiscard]] bool areMarked(const InsiemeDiRighe& entries) const { return marked_ == entries; }
    /// Runs what writes nothing of the guide but the marks of use of these entries: no entry tells them, so what was
    /// read is kept.
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
    std::size_t kept_ = 0; ///< entries in all
    std::optional<InsiemeDiRighe> marked_;
    bool onlyMarks_ = false;
};

} // namespace vanzer::store
