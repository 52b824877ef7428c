// SPDX-License-Identifier: MIT
// A table as the file has it, and the SQL that makes tables and indexes.
#pragma once

#include <vector>

#include <QAnyStringView>
#include <QByteArray>
#include <QString>
#include <QStringList>

#include "store/schema.h"

namespace vanzer::store {

/// A stored table and its fields, in their order.
struct TableInfo {
    QString nome;
    std::vector<FieldDef> campi;
    QByteArray selezione; ///< selectSql() of the table, made once; `inserimento` is its insertSql()
    QByteArray inserimento;

    /// Position of the field of that name, case ignored; -1 if there is none.
    [[nodiscard]] int campo(QAnyStringView name) const;
};

/// A name in double quotes, escaped for SQL.
[[nodiscard]] QByteArray quotedName(const QString& name);

/// Converts a field to its declared type in the file, and back.
[[nodiscard]] QByteArray declaredType(const FieldDef& field);
[[nodiscard]] FieldDef fieldOfType(const QString& name, const QString& declaredType);

[[nodiscard]] QByteArray createTableSql(const QString& table, const std::vector<FieldDef>& fields);

/// SELECT of the rowid and all fields, and INSERT of a record with one parameter for each field, in their order.
[[nodiscard]] QByteArray selectSql(const TableInfo& table);
[[nodiscard]] QByteArray insertSql(const TableInfo& table);

/// Name of an index in the file: "Itinerari.Localita", as index names must be unique there. Its logical name is the
/// field's.
[[nodiscard]] QString indexName(const QString& table, const QString& field);
[[nodiscard]] QByteArray createIndexSql(const QString& table, const QString& field);
/// The logical name of an index; empty for an internal index.
[[nodiscard]] QString logicalIndexName(const QString& table, const QString& indexName);

/// Name of an internal index, after its purpose: a field, or `indiceParentesi`.
inline constexpr QStringView indiceParentesi = u"(";
[[nodiscard]] QString internalIndexName(const QString& table, QStringView what);
/// Index of the records whose mark isn't "0". With it, clearing the marks takes time by the number of marks, not by the
/// size of the table.
[[nodiscard]] QByteArray createMarkIndexSql(const QString& table, const QString& field);
/// Condition that a text has a part in brackets, and an index of the records that meet it.
[[nodiscard]] QByteArray bracketSql(const QString& field);
[[nodiscard]] QByteArray createBracketIndexSql(const QString& table, const QString& field);

} // namespace vanzer::store
