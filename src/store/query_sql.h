// SPDX-License-Identifier: MIT
// Translates queries to SQL for the engine.
//
// An equality, or a LIKE without wildcards, becomes an index lookup with a bound value. A LIKE that begins with plain
// text becomes a range of the index, and the pattern is checked for the records of the range. A LIKE that begins with a
// wildcard is checked for all records. Each form of query is translated once per connection.
#pragma once

#include <memory>
#include <vector>

#include <QByteArray>

#include "store/database.h"
#include "store/query.h"

namespace vanzer::store {

/// The SQL statements for one form of query. Their first parameters are the values of the conditions.
struct Translation {
    std::shared_ptr<const TableInfo> tabella;
    QByteArray select;       ///< rowid and all fields; for a whole table the records after a rowid, the only parameter
    QByteArray last;         ///< last record of the set
    QByteArray count;        ///< number of records
    QByteArray countBelow;   ///< number of records with a smaller rowid than the last parameter
    QByteArray byRowid;      ///< one record of the table, by rowid
    QByteArray insert;       ///< one parameter for each field
    QByteArray deleteAll;    ///< deletes all records of the set
    int parameters = 0;      ///< number of parameters of the conditions
    bool wholeTable = false; ///< no conditions, order of adding: a walk can continue after any rowid
};

struct TranslatedQuery {
    std::shared_ptr<const Translation> form;
    std::vector<QByteArray> values; ///< values of the conditions, UTF-8

    void bind(Statement& statement) const;
};

/// Throws StoreError (Other) for an unknown table or field.
[[nodiscard]] TranslatedQuery translate(Database& database, const Query& query);

} // namespace vanzer::store
