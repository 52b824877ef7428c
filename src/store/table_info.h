// A stored table as the file has it, and the texts that make tables and indexes.
#pragma once

#include <vector>

#include <QAnyStringView>
#include <QByteArray>
#include <QString>
#include <QStringList>

#include "store/schema.h"

namespace vanzer::store {

/// A table's stored fields, in their order.
struct TableInfo {
    QString nome;
    std::vector<FieldDef> campi;
    QByteArray selezione; ///< selectSql and insertSql of it, made once
    QByteArray inserimento;

    /// Position of the field of that name, case ignored; -1 if there is none.
    [[nodiscard]] int campo(QAnyStringView name) const;
};

/// A name as the engine takes it, in double quotes.
[[nodiscard]] QByteArray quotedName(const QString& name);

/// The declared type of a field in the file, and the field that such a type tells of.
[[nodiscard]] QByteArray declaredType(const FieldDef& field);
[[nodiscard]] FieldDef fieldOfType(const QString& name, const QString& declaredType);

[[nodiscard]] QByteArray createTableSql(const QString& table, const std::vector<FieldDef>& fields);

/// "rowid" and all fields, and the record with a place for each field (parameters in the fields' order).
[[nodiscard]] QByteArray selectSql(const TableInfo& table);
[[nodiscard]] QByteArray insertSql(const TableInfo& table);

/// Indexes are named apart in a file ("Itinerari.Localita"); the system knows each by its field alone.
[[nodiscard]] QString indexName(const QString& table, const QString& field);
[[nodiscard]] QByteArray createIndexSql(const QString& table, const QString& field);
/// Empty for an index that the system doesn't know of.
[[nodiscard]] QString logicalIndexName(const QString& table, const QString& indexName);

/// Indexes that the system doesn't know of are named by what they serve: a field, or the brackets.
inline constexpr QStringView indiceParentesi = u"(";
[[nodiscard]] QString internalIndexName(const QString& table, QStringView what);
/// The index of the records whose mark isn't "0": clearing the marks costs what was marked, not the whole table.
[[nodiscard]] QByteArray createMarkIndexSql(const QString& table, const QString& field);
/// The condition that a text has a part in brackets, and the index of the records for which it holds.
[[nodiscard]] QByteArray bracketSql(const QString& field);
[[nodiscard]] QByteArray createBracketIndexSql(const QString& table, const QString& field);

} // namespace vanzer::store
