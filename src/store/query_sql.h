// A query as the engine takes it.
//
// An equality becomes an index lookup with a bound value; so does a LIKE without wildcards. A LIKE that begins with
// plain text becomes a range of the index and a check of the pattern on what the range gives; one that begins with a
// wildcard is a check alone. Each form of query is translated once for a connection.
#pragma once

#include <memory>
#include <vector>

#include <QByteArray>

#include "store/database.h"
#include "store/query.h"

namespace vanzer::store {

/// The statements of one form of query. Their first parameters are the values of the conditions.
struct Translation {
    std::shared_ptr<const TableInfo> tabella;
    QByteArray select;       ///< rowid and all fields; of a whole table what lies behind a rowid, the one parameter
    QByteArray last;         ///< the last record of the set
    QByteArray count;        ///< number of records
    QByteArray countBelow;   ///< number of records below a rowid, the last parameter
    QByteArray byRowid;      ///< one record of the table
    QByteArray insert;       ///< a parameter for each field
    QByteArray deleteAll;    ///< all records of the set
    int parameters = 0;      ///< of the conditions
    bool wholeTable = false; ///< no conditions, order of adding: the walk can go on behind any rowid
};

struct TranslatedQuery {
    std::shared_ptr<const Translation> form;
    std::vector<QByteArray> values; ///< of the conditions, UTF-8

    void bind(Statement& statement) const;
};

/// Throws StoreError (Other) for an unknown table or field.
[[nodiscard]] TranslatedQuery translate(Database& database, const Query& query);

} // namespace vanzer::store
