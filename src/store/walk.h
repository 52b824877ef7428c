// SPDX-License-Identifier: MIT
// A walk through the records of a query. Records are read only when they are needed. Before the table is written, the
// rest of the set is read, so that the write doesn't change what the walk will see. A walk that fails is at its end; it
// can be started again.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "store/database.h"
#include "store/query_sql.h"
#include "store/value.h"

namespace vanzer::store {

class Walk final : public LiveSet {
  public:
    Walk(Database& database, TranslatedQuery query);
    ~Walk() override;

    [[nodiscard]] const TableInfo& tabella() const { return *query_.form->tabella; }
    [[nodiscard]] const Translation& form() const { return *query_.form; }
    /// Throws StoreError (Other) if the archive was closed.
    [[nodiscard]] Database& database() const;

    [[nodiscard]] bool atEnd();
    void first();
    void last();
    void next();
    /// The exact number of records: those that the query found, plus those added and minus those deleted through this
    /// set.
    [[nodiscard]] qint64 count();

    /// Values of the current record. Throw StoreError (Other) if there is none: at the end or after a deletion.
    [[nodiscard]] qint64 rowid();
    [[nodiscard]] QString text(std::size_t field);
    [[nodiscard]] Valore value(std::size_t field);
    [[nodiscard]] bool isNull(std::size_t field);

    /// Report what was written through this set.
    void added(qint64 rowid);
    void changed(std::size_t field, Valore value);
    void deleted();

    void beforeWriting(const TableInfo& table) override;
    void rolledBack() noexcept override;
    void abandon() noexcept override;

  private:
    enum class Place { NotStarted, OnRecord, Deleted, End };

    void start();
    void advance();
    void openCursor(qint64 behindRowid);
    bool stepCursor();
    bool nextAdded();
    bool lastAdded();
    void end() noexcept;
    /// Runs a move. If it throws, the walk is at its end.
    template<typename Move> void orEnd(Move move);
    bool load(Statement& statement);
    void requireRecord();
    [[nodiscard]] Riga rowOf(const Statement& statement) const;
    [[nodiscard]] qint64 countNow() const;

    Database* database_;
    TranslatedQuery query_;
    Place place_ = Place::NotStarted;
    StatementLease cursor_;    ///< the statement that reads the records, while it is running
    bool onCursor_ = false;    ///< the current record is in the cursor, else in `current_`
    bool interrupted_ = false; ///< walk of a whole table that continues after the current rowid
    Riga current_;             ///< its rowid is always valid
    std::vector<Riga> rest_;   ///< records read ahead; the next is at restAt_
    std::size_t restAt_ = 0;
    std::vector<qint64> added_; ///< rowids of added records, ascending; empty in a walk of a whole table
    std::size_t addedAt_ = 0;
    std::optional<qint64> count_;
};

} // namespace vanzer::store
