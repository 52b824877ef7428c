// SPDX-License-Identifier: MIT
#include "store/recordset.h"

#include <optional>
#include <utility>
#include <vector>

#include "store/field_values.h"
#include "store/walk.h"

namespace vanzer::store {

namespace {

[[noreturn]] void misuse(const QString& detail) {
    throw StoreError(StoreError::Kind::Other, QString(), detail);
}

} // namespace

struct Recordset::Impl {
    enum class Editing { None, New, Change };

    Impl(Database& database, const Query& query)
        : walk(database, translate(database, query)), written(walk.tabella().campi.size()) {}

    [[nodiscard]] const std::vector<FieldDef>& fields() const { return walk.tabella().campi; }
    [[nodiscard]] Valore value(std::size_t field);
    void begin(Editing how);
    void insert();
    void change();

    Walk walk;
    Editing editing = Editing::None;
    std::vector<std::optional<Valore>> written; ///< values written since AddNew or Edit, by field
};

Valore Recordset::Impl::value(std::size_t field) {
    if (editing != Editing::None && written[field])
        return *written[field];
    return editing == Editing::New ? valoreIniziale(fields()[field]) : walk.value(field);
}

void Recordset::Impl::begin(Editing how) {
    editing = how;
    for (auto& value : written)
        value.reset();
}

void Recordset::Impl::insert() {
    Database& database = walk.database();
    const StatementLease statement = database.prepare(walk.form().insert);
    for (std::size_t i = 0; i < written.size(); ++i)
        statement->bind(static_cast<int>(i) + 1, written[i] ? *written[i] : valoreIniziale(fields()[i]));
    database.write(walk.tabella(), *statement);
    walk.added(database.ultimoRowid());
}

void Recordset::Impl::change() {
    QByteArray assignments;
    for (std::size_t i = 0; i < written.size(); ++i) {
        if (written[i])
            assignments += (assignments.isEmpty() ? "" : ",") + quotedName(fields()[i].name) + "=?";
    }
    const qint64 rowid = walk.rowid();
    if (assignments.isEmpty())
        return;
    Database& database = walk.database();
    const StatementLease statement =
        database.prepare("UPDATE " + quotedName(walk.tabella().nome) + " SET " + assignments + " WHERE rowid=?");
    int parameter = 0;
    for (const auto& value : written) {
        if (value)
            statement->bind(++parameter, *value);
    }
    statement->bind(parameter + 1, rowid);
    database.write(walk.tabella(), *statement);
    for (std::size_t i = 0; i < written.size(); ++i) {
        if (written[i])
            walk.changed(i, std::move(*written[i]));
    }
}

Recordset::Recordset() = default;
Recordset::Recordset(Database& database, const Query& query) : impl_(std::make_unique<Impl>(database, query)) {}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

Recordset::Impl& Recordset::opened() const {
    if (impl_ == nullptr)
        misuse(QStringLiteral("nessuna ricerca aperta"));
    return *impl_;
}

bool Recordset::EOF_() const {
    return impl_ == nullptr || impl_->walk.atEnd();
}

void Recordset::MoveFirst() {
    opened().begin(Impl::Editing::None);
    impl_->walk.first();
}

void Recordset::MoveLast() {
    opened().begin(Impl::Editing::None);
    impl_->walk.last();
}

void Recordset::MoveNext() {
    if (opened().editing != Impl::Editing::None)
        impl_->begin(Impl::Editing::None);
    impl_->walk.next();
}

qint64 Recordset::RecordCount() const {
    return impl_ == nullptr ? 0 : impl_->walk.count();
}

void Recordset::AddNew() {
    opened().begin(Impl::Editing::New);
}

void Recordset::Edit() {
    (void)opened().walk.rowid(); // throws if there is no current record
    impl_->begin(Impl::Editing::Change);
}

void Recordset::Update() {
    switch (opened().editing) {
    case Impl::Editing::None: misuse(QStringLiteral("Update senza AddNew o Edit"));
    case Impl::Editing::New: impl_->insert(); break;
    case Impl::Editing::Change: impl_->change(); break;
    }
    impl_->editing = Impl::Editing::None;
}

void Recordset::Delete() {
    Walk& walk = opened().walk;
    impl_->begin(Impl::Editing::None);
    Database& database = walk.database();
    const StatementLease statement =
        database.prepare("DELETE FROM " + quotedName(walk.tabella().nome) + " WHERE rowid=?");
    statement->bind(1, walk.rowid());
    database.write(walk.tabella(), *statement);
    walk.deleted();
}

int Recordset::count() const {
    return impl_ == nullptr ? 0 : static_cast<int>(impl_->fields().size());
}

const FieldDef& Recordset::field(int position) const {
    if (position < 0 || position >= count())
        misuse(QStringLiteral("nessun campo numero %1").arg(position));
    return impl_->fields()[static_cast<std::size_t>(position)];
}

const QString& Recordset::name(int position) const {
    return field(position).name;
}

int Recordset::size(int position) const {
    return field(position).size;
}

FieldKind Recordset::kind(int position) const {
    return field(position).kind;
}

int Recordset::campo(QAnyStringView name) const {
    return impl_ == nullptr ? -1 : impl_->walk.tabella().campo(name);
}

int Recordset::position(QAnyStringView name) const {
    const int found = campo(name);
    if (found < 0)
        misuse(QStringLiteral("nessun campo ") + name.toString());
    return found;
}

QString Recordset::testo(int position) const {
    const FieldKind kind = field(position).kind;
    const auto at = static_cast<std::size_t>(position);
    if (kind == FieldKind::Text && impl_->editing == Impl::Editing::None)
        return impl_->walk.text(at);
    return testoDa(impl_->value(at), kind);
}

bool Recordset::hasValue(int position) const {
    (void)field(position);
    const auto at = static_cast<std::size_t>(position);
    if (impl_->editing == Impl::Editing::None)
        return !impl_->walk.isNull(at);
    return !std::holds_alternative<std::monostate>(impl_->value(at));
}

bool Recordset::siNo(int position) const {
    (void)field(position);
    return siNoDa(impl_->value(static_cast<std::size_t>(position)));
}

void Recordset::write(int position, const QString& text) {
    const FieldDef& target = field(position);
    if (impl_->editing == Impl::Editing::None)
        misuse(QStringLiteral("scrittura di %1 senza AddNew o Edit").arg(target.name));
    impl_->written[static_cast<std::size_t>(position)] = valoreDa(text, target);
}

void Recordset::writeYesNo(int position, bool yes) {
    write(position, yes ? QStringLiteral("1") : QStringLiteral("0"));
}

void Recordset::writeNull(int position) {
    const FieldDef& target = field(position);
    if (impl_->editing == Impl::Editing::None)
        misuse(QStringLiteral("scrittura di %1 senza AddNew o Edit").arg(target.name));
    impl_->written[static_cast<std::size_t>(position)] = valoreIniziale(target);
}

qint64 Recordset::rowid() const {
    return opened().walk.rowid();
}

} // namespace vanzer::store
