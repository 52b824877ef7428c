// SPDX-License-Identifier: MIT
// Queries: all fields of one table, conditions joined by AND, and an order.
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

/// Records of one table. Ties in the order keep the order in which records were added.
struct Query {
    QString table;
    std::vector<Condition> where;
    std::vector<Order> orderBy;
};

/// Parses "SELECT * FROM table [WHERE condition [AND condition]...] [ORDER BY field [DESC], ...]", or just a table's
/// name. Case of keywords is ignored. The conditions may contain one pair of brackets. An apostrophe in a text is
/// doubled. Throws StoreError (Other, without a path) for anything else.
[[nodiscard]] Query parsed(const QString& query);

/// Escapes a text for use between the quotes of a query.
[[nodiscard]] QString quotato(const QString& text);

} // namespace vanzer::store
