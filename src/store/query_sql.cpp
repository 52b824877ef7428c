// SPDX-License-Identifier: MIT
#include "store/query_sql.h"

#include <utility>

#include "core/collation.h"

namespace vanzer::store {

namespace {

/// How a condition is expressed in SQL.
enum class Form : char16_t { Equal = u'=', Range = u'<', Check = u'~' };

struct PlainCondition {
    Form form = Form::Equal;
    QString field;
    std::vector<QByteArray> values;
};

bool isWildcard(QChar c) {
    return c == u'*' || c == u'?';
}

PlainCondition plain(const Condition& condition) {
    const QString& text = condition.text;
    qsizetype literal = 0;
    while (literal < text.size() && !isWildcard(text[literal]))
        ++literal;
    if (condition.test == Condition::Test::Equal || literal == text.size())
        return {Form::Equal, condition.field, {text.toUtf8()}};
    const QByteArray start = lettereBase(QStringView(text).left(literal));
    if (start.isEmpty())
        return {Form::Check, condition.field, {text.toUtf8()}};
    return {Form::Range, condition.field, {start, start + oltreOgniLettera, text.toUtf8()}};
}

QByteArray sqlOf(const PlainCondition& condition, const QByteArray& field) {
    switch (condition.form) {
    case Form::Equal: return field + " = ? COLLATE VANZER";
    case Form::Range:
        return field + " >= ? COLLATE VANZER AND " + field + " < ? COLLATE VANZER AND somiglia(?," + field + ')';
    case Form::Check: break;
    }
    return "somiglia(?," + field + ')';
}

QString shapeOf(const Query& query, const std::vector<PlainCondition>& conditions) {
    QString shape = query.table;
    for (const PlainCondition& condition : conditions)
        shape += QChar(static_cast<char16_t>(condition.form)) + condition.field;
    for (const Order& order : query.orderBy)
        shape += QChar(order.descending ? u'>' : u';') + order.field;
    return shape;
}

QByteArray fieldSql(const Database& database, const TableInfo& table, const QString& field) {
    const int position = table.campo(field);
    if (position < 0)
        throw StoreError(StoreError::Kind::Other, database.percorso(),
                         QStringLiteral("il campo %1 non c'è in %2").arg(field, table.nome));
    return quotedName(table.campi[static_cast<std::size_t>(position)].name);
}

struct OrderSql {
    QByteArray forward;
    QByteArray backward;
};

// The rowid is always the last key, ascending, so that ties keep the order of adding. With a range, an ORDER BY rowid
// could make the engine scan the whole table instead of using the index. The "+" prevents that.
OrderSql orderSql(const Database& database, const TableInfo& table, const Query& query, bool hasRange) {
    OrderSql sql;
    for (const Order& order : query.orderBy) {
        const QByteArray field = fieldSql(database, table, order.field) + " COLLATE VANZER";
        sql.forward += field + (order.descending ? " DESC," : ",");
        sql.backward += field + (order.descending ? "," : " DESC,");
    }
    const QByteArray rowid = hasRange && query.orderBy.empty() ? "+rowid" : "rowid";
    sql.forward.prepend(" ORDER BY ").append(rowid);
    sql.backward.prepend(" ORDER BY ").append(rowid + " DESC LIMIT 1");
    return sql;
}

Translation makeTranslation(Database& database, const Query& query, const std::vector<PlainCondition>& conditions) {
    Translation form;
    form.tabella = database.tabella(query.table);
    if (form.tabella == nullptr)
        throw StoreError(StoreError::Kind::Other, database.percorso(),
                         QStringLiteral("la tabella %1 non c'è").arg(query.table));
    const TableInfo& table = *form.tabella;
    QByteArray where;
    bool hasRange = false;
    for (const PlainCondition& condition : conditions) {
        where += where.isEmpty() ? " WHERE " : " AND ";
        where += sqlOf(condition, fieldSql(database, table, condition.field));
        form.parameters += static_cast<int>(condition.values.size());
        hasRange = hasRange || condition.form == Form::Range;
    }
    form.wholeTable = conditions.empty() && query.orderBy.empty();
    const OrderSql order = orderSql(database, table, query, hasRange);
    const QByteArray count = "SELECT count(*) FROM " + quotedName(table.nome) + where;
    form.select = table.selezione + (form.wholeTable ? " WHERE rowid > ?" : where) + order.forward;
    form.last = table.selezione + where + order.backward;
    form.count = count;
    form.countBelow = count + (where.isEmpty() ? " WHERE" : " AND") + " rowid < ?";
    form.byRowid = table.selezione + " WHERE rowid = ?";
    form.insert = table.inserimento;
    form.deleteAll = "DELETE FROM " + quotedName(table.nome) + where;
    return form;
}

} // namespace

void TranslatedQuery::bind(Statement& statement) const {
    int parameter = 0;
    for (const QByteArray& value : values)
        statement.bindText(++parameter, value);
}

TranslatedQuery translate(Database& database, const Query& query) {
    std::vector<PlainCondition> conditions;
    conditions.reserve(query.where.size());
    for (const Condition& condition : query.where)
        conditions.push_back(plain(condition));
    const QString shape = shapeOf(query, conditions);
    auto& known = database.traduzioni();
    auto found = known.constFind(shape);
    if (found == known.cend())
        found = known.insert(shape, std::make_shared<const Translation>(makeTranslation(database, query, conditions)));
    TranslatedQuery result{*found, {}};
    for (PlainCondition& condition : conditions) {
        for (QByteArray& value : condition.values)
            result.values.push_back(std::move(value));
    }
    return result;
}

} // namespace vanzer::store
