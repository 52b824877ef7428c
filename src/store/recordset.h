// SPDX-License-Identifier: MIT
// The records that a query found, read and changed one at a time.
//
// Opening reads nothing; records are read when they are needed. Records may be changed during a walk. A field is named
// by its name, case ignored, or by its position from 0. Every operation throws StoreError. An unknown field, a value
// without a current record, and a write outside AddNew or Edit are of the kind Other.
#pragma once

#include <memory>

#include <QAnyStringView>
#include <QString>

#include "store/query.h"
#include "store/schema.h"

namespace vanzer::store {

class Database;

class Recordset {
  public:
    /// A closed set: no fields, at its end.
    Recordset();
    Recordset(Database& database, const Query& query);
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;
    ~Recordset();

    /// True after the last record, and always in an empty set.
    [[nodiscard]] bool EOF_() const;
    void MoveFirst();
    void MoveLast();
    /// Moves to the next record. Cancels an AddNew or Edit without Update.
    void MoveNext();
    /// Number of all records of the set, wherever the walk is. They are counted at the first call.
    [[nodiscard]] qint64 RecordCount() const;

    /// Begins a new record without values; Update writes it. The current record stays current. The new record comes at
    /// the end of the set.
    void AddNew();
    /// Begins to change the current record; Update writes it.
    void Edit();
    void Update();
    /// Deletes the current record. The set stays at its place, without values, until MoveNext.
    void Delete();

    [[nodiscard]] int count() const;
    [[nodiscard]] const QString& name(int field) const;
    [[nodiscard]] int size(int field) const;
    [[nodiscard]] FieldKind kind(int field) const;
    /// Position of a field; -1 if there is none of that name.
    [[nodiscard]] int campo(QAnyStringView name) const;

    /// Values of the current record. Between AddNew or Edit and Update they are those that will be written. Without a
    /// value the text is empty and yes/no is false. The text of yes/no is "True" or "False".
    [[nodiscard]] QString testo(int field) const;
    [[nodiscard]] QString testo(QAnyStringView field) const { return testo(position(field)); }
    [[nodiscard]] bool hasValue(int field) const;
    [[nodiscard]] bool hasValue(QAnyStringView field) const { return hasValue(position(field)); }
    [[nodiscard]] bool siNo(int field) const;
    [[nodiscard]] bool siNo(QAnyStringView field) const { return siNo(position(field)); }

    /// Writes a field. A text is cut to the size of the field, and an empty text becomes a blank. For yes/no, "True",
    /// "Vero", "-1" and "1" mean yes.
    void write(int field, const QString& text);
    void write(QAnyStringView field, const QString& text) { write(position(field), text); }
    /// Writes yes or no; a text field gets "1" or "0".
    void writeYesNo(int field, bool yes);
    void writeYesNo(QAnyStringView field, bool yes) { writeYesNo(position(field), yes); }
    void writeNull(int field);
    void writeNull(QAnyStringView field) { writeNull(position(field)); }

    /// Id of the current record. It never changes while the record exists, and grows in the order of adding.
    [[nodiscard]] qint64 rowid() const;

  private:
    struct Impl;

    [[nodiscard]] Impl& opened() const;
    [[nodiscard]] const FieldDef& field(int position) const;
    [[nodiscard]] int position(QAnyStringView name) const;

    std::unique_ptr<Impl> impl_;
};

} // namespace vanzer::store
