// SPDX-License-Identifier: MIT
#include "store/table_info.h"

#include <array>
#include <cmath>

#include "core/text.h"

namespace vanzer::store {

namespace {

struct KindName {
    FieldKind kind;
    const char* name;
};

// A text type includes its size in characters: "TEXT(30)".
constexpr std::array<KindName, 7> kindNames{{{FieldKind::Text, "TEXT"},
                                             {FieldKind::YesNo, "YESNO"},
                                             {FieldKind::Binary, "BLOB"},
                                             {FieldKind::DateTime, "DATETIME"},
                                             {FieldKind::Integer16, "SMALLINT"},
                                             {FieldKind::Single, "FLOAT"},
                                             {FieldKind::Double, "DOUBLE"}}};

constexpr QChar internalMark = u'#';

} // namespace

int TableInfo::campo(QAnyStringView name) const {
    for (std::size_t i = 0; i < campi.size(); ++i) {
        if (QAnyStringView::compare(campi[i].name, name, Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    }
    return -1;
}

QByteArray quotedName(const QString& name) {
    return '"' + name.toUtf8().replace('"', "\"\"") + '"';
}

QByteArray declaredType(const FieldDef& field) {
    for (const KindName& entry : kindNames) {
        if (entry.kind == field.kind)
            return field.kind == FieldKind::Text ? entry.name + ('(' + QByteArray::number(field.size) + ')')
                                                 : QByteArray(entry.name);
    }
    return {};
}

FieldDef fieldOfType(const QString& name, const QString& declaredType) {
    const qsizetype open = declaredType.indexOf(u'(');
    const QString word = Trim(open < 0 ? declaredType : declaredType.left(open));
    for (const KindName& entry : kindNames) {
        if (word.compare(QLatin1String(entry.name), Qt::CaseInsensitive) == 0 && entry.kind != FieldKind::Text)
            return {name, entry.kind, 0};
    }
    return {name, FieldKind::Text, open < 0 ? 0 : roundToInt(std::trunc(Val(QStringView(declaredType).mid(open + 1))))};
}

QByteArray createTableSql(const QString& table, const std::vector<FieldDef>& fields) {
    QByteArray sql = "CREATE TABLE " + quotedName(table) + '(';
    for (const FieldDef& field : fields) {
        if (!sql.endsWith('('))
            sql += ',';
        sql += quotedName(field.name) + ' ' + declaredType(field);
        if (field.kind == FieldKind::Text)
            sql += " COLLATE VANZER";
    }
    return sql + ')';
}

QByteArray selectSql(const TableInfo& table) {
    QByteArray sql = "SELECT rowid";
    for (const FieldDef& field : table.campi)
        sql += ',' + quotedName(field.name);
    return sql + " FROM " + quotedName(table.nome);
}

QByteArray insertSql(const TableInfo& table) {
    return "INSERT INTO " + quotedName(table.nome) + " VALUES(?" +
           QByteArray(",?").repeated(static_cast<qsizetype>(table.campi.size()) - 1) + ')';
}

QString indexName(const QString& table, const QString& field) {
    return table + u'.' + field;
}

QByteArray createIndexSql(const QString& table, const QString& field) {
    return "CREATE INDEX " + quotedName(indexName(table, field)) + " ON " + quotedName(table) + '(' +
           quotedName(field) + " COLLATE VANZER)";
}

QString logicalIndexName(const QString& table, const QString& indexName) {
    if (beginsWith(indexName, QString(table + internalMark)))
        return {};
    return beginsWith(indexName, QString(table + u'.')) ? indexName.mid(table.size() + 1) : indexName;
}

QString internalIndexName(const QString& table, QStringView what) {
    return table + internalMark + what.toString();
}

QByteArray createMarkIndexSql(const QString& table, const QString& field) {
    return "CREATE INDEX " + quotedName(internalIndexName(table, field)) + " ON " + quotedName(table) + '(' +
           quotedName(field) + ") WHERE " + quotedName(field) + " IS NOT '0'";
}

QByteArray bracketSql(const QString& field) {
    return "instr(" + quotedName(field) + ",'(') > 0";
}

QByteArray createBracketIndexSql(const QString& table, const QString& field) {
    return "CREATE INDEX " + quotedName(internalIndexName(table, indiceParentesi)) + " ON " + quotedName(table) + '(' +
           quotedName(field) + ") WHERE " + bracketSql(field);
}

} // namespace vanzer::store
