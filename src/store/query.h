// The one form of query that the system has: all fields of one table, conditions that all hold, an order.
#pragma once

#include <vector>

#include <QString>

namespace vanzer::store {

struct Condition {
    enum class Test {
        Equal, ///< field = 'text'
        Like   ///< field LIKE 'pattern': "*" any text, "?" one character
    };
    QString field;
    Test test = Test::Equal;
    QString text;
};

struct Order {
    QString field;
    bool descending = false;
};

/// Records of one table. Those that tie in the order come as they were added.
struct Query {
    QString table;
    std::vector<Condition> where;
    std::vector<Order> orderBy;
};

/// Reads "SELECT * FROM table [WHERE condition [AND condition]...] [ORDER BY field [DESC], ...]", or just a table's
/// name. Keywords ignore case, one pair of brackets may stand in the conditions, an apostrophe in a text is doubled.
/// Throws StoreError (Other) for anything else; it has no path.
[[nodiscard]] Query parsed(const QString& query);

/// A text as it goes between the quotes of a query.
[[nodiscard]] QString quotato(const QString& text);

} // namespace vanzer::store
