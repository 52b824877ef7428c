// The way through the records of a query. Nothing is read before it is asked for, and no more than that, until the
// table is written: then what is left of the set is read first, so that no write changes what the walk is going to see.
// A walk that fails is at its end; it can be begun anew.
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
    /// Throws StoreError (Other) when the archive was closed.
    [[nodiscard]] Database& database() const;

    [[nodiscard]] bool atEnd();
    void first();
    void last();
    void next();
    /// Exact: what the query found, with what was added and without what was deleted through this set.
    [[nodiscard]] qint64 count();

    /// Of the current record. Throws StoreError (Other) when there is none: at the end, or behind a deletion.
    [[nodiscard]] qint64 rowid();
    [[nodiscard]] QString text(std::size_t field);
    [[nodiscard]] Valore value(std::size_t field);
    [[nodiscard]] bool isNull(std::size_t field);

    /// What was written through this set.
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
    /// Moves; a move that throws leaves the walk at its end.
    template<typename Move> void orEnd(Move move);
    bool load(Statement& statement);
    void requireRecord();
    [[nodiscard]] Riga rowOf(const Statement& statement) const;
    [[nodiscard]] qint64 countNow() const;

    Database* database_;
    TranslatedQuery query_;
    Place place_ = Place::NotStarted;
    StatementLease cursor_;    ///< what is still stepping
    bool onCursor_ = false;    ///< the current record is the cursor's, else `current_`
    bool interrupted_ = false; ///< a whole table, to be walked on behind the current rowid
    Riga current_;             ///< its rowid always holds
    std::vector<Riga> rest_;   ///< read ahead, from restAt_
    std::size_t restAt_ = 0;
    std::vector<qint64> added_; ///< rowids, upwards: they stand at the end of a set that isn't a whole table
    std::size_t addedAt_ = 0;
    std::optional<qint64> count_;
};

} // namespace vanzer::store
