// A set of records that a query found, to be walked and changed one record at a time.
//
// Opening reads nothing: the first record is looked for when it is first asked for, and the walk reads no further than
// it goes. Changing records of a set that is being walked is safe. Fields are told by name, case ignored, or by
// position from 0. Every operation throws StoreError; an unknown field, a value asked for where there is no record, and
// a write outside AddNew or Edit are of the kind Other.
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
    /// A closed set: it has no fields and is at its end.
    Recordset();
    Recordset(Database& database, const Query& query);
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;
    ~Recordset();

    /// True behind the last record, and at once in an empty set.
    [[nodiscard]] bool EOF_() const;
    void MoveFirst();
    void MoveLast();
    /// Leaves an AddNew or Edit that wasn't updated.
    void MoveNext();
    /// All records of the set, wherever the walk is. Counted when first asked.
    [[nodiscard]] qint64 RecordCount() const;

    /// A new record without values, written by Update. The current record stays the current one; the new one lies at
    /// the end of the set.
    void AddNew();
    /// The current record is to be changed, written by Update.
    void Edit();
    void Update();
    /// The current record goes. Its place stays until MoveNext, and has no values.
    void Delete();

    [[nodiscard]] int count() const;
    [[nodiscard]] const QString& name(int field) const;
    [[nodiscard]] int size(int field) const;
    [[nodiscard]] FieldKind kind(int field) const;
    /// Position of a field, -1 if there is none of that name.
    [[nodiscard]] int campo(QAnyStringView name) const;

    /// Values of the current record or, between AddNew or Edit and Update, of the record as it will be written. Without
    /// a value the text is empty and yes/no is no. The text of yes/no is "True" or "False".
    [[nodiscard]] QString testo(int field) const;
    [[nodiscard]] QString testo(QAnyStringView field) const { return testo(position(field)); }
    [[nodiscard]] bool hasValue(int field) const;
    [[nodiscard]] bool hasValue(QAnyStringView field) const { return hasValue(position(field)); }
    [[nodiscard]] bool siNo(int field) const;
    [[nodiscard]] bool siNo(QAnyStringView field) const { return siNo(position(field)); }

    /// A text longer than its field is cut to it, an empty one becomes a blank; for yes/no, "True", "Vero", "-1" and
    /// "1" are yes.
    void write(int field, const QString& text);
    void write(QAnyStringView field, const QString& text) { write(position(field), text); }
    /// "1" or "0" in a text field.
    void writeYesNo(int field, bool yes);
    void writeYesNo(QAnyStringView field, bool yes) { writeYesNo(position(field), yes); }
    void writeNull(int field);
    void writeNull(QAnyStringView field) { writeNull(position(field)); }

    /// Identity of the current record: it never changes while the record lives, and grows in the order of adding.
    [[nodiscard]] qint64 rowid() const;

  private:
    struct Impl;

    [[nodiscard]] Impl& opened() const;
    [[nodiscard]] const FieldDef& field(int position) const;
    [[nodiscard]] int position(QAnyStringView name) const;

    std::unique_ptr<Impl> impl_;
};

} // namespace vanzer::store
