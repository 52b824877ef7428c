// SPDX-License-Identifier: MIT
#include "store/walk.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace vanzer::store {

Walk::Walk(Database& database, TranslatedQuery query) : database_(&database), query_(std::move(query)) {
    database.add(*this);
}

Walk::~Walk() {
    if (database_ != nullptr)
        database_->remove(*this);
}

Database& Walk::database() const {
    if (database_ == nullptr)
        throw StoreError(StoreError::Kind::Other, QString(), QStringLiteral("l'archivio è chiuso"));
    return *database_;
}

void Walk::abandon() noexcept {
    end();
    database_ = nullptr;
}

void Walk::end() noexcept {
    cursor_.giveBack();
    onCursor_ = false;
    interrupted_ = false;
    rest_.clear();
    restAt_ = 0;
    place_ = Place::End;
}

template<typename Move> void Walk::orEnd(Move move) {
    try {
        move();
    } catch (...) {
        end();
        throw;
    }
}

bool Walk::atEnd() {
    start();
    return place_ == Place::End;
}

void Walk::start() {
    if (place_ == Place::NotStarted)
        first();
}

void Walk::first() {
    orEnd([this] {
        rest_.clear();
        restAt_ = 0;
        addedAt_ = 0;
        openCursor(std::numeric_limits<qint64>::min());
        advance();
    });
}

void Walk::openCursor(qint64 behindRowid) {
    cursor_.giveBack();
    interrupted_ = false;
    cursor_ = database().prepare(form().select);
    query_.bind(*cursor_);
    if (form().wholeTable)
        cursor_->bind(1, behindRowid);
}

void Walk::next() {
    if (place_ == Place::NotStarted)
        first();
    if (place_ != Place::End)
        orEnd([this] { advance(); });
}

void Walk::advance() {
    if (interrupted_)
        openCursor(current_.rowid);
    place_ = Place::OnRecord;
    onCursor_ = cursor_ && stepCursor();
    if (onCursor_) {
        current_.rowid = cursor_->integer(0);
        return;
    }
    if (restAt_ < rest_.size()) {
        current_ = std::move(rest_[restAt_++]);
        return;
    }
    if (!nextAdded())
        place_ = Place::End;
}

/// Moves the cursor to the next record. Skips added records: they come at the end.
bool Walk::stepCursor() {
    while (cursor_->step()) {
        if (!std::binary_search(added_.begin(), added_.end(), cursor_->integer(0)))
            return true;
    }
    cursor_.giveBack();
    return false;
}

bool Walk::nextAdded() {
    while (addedAt_ < added_.size()) {
        const StatementLease record = database().prepare(form().byRowid);
        record->bind(1, added_[addedAt_++]);
        if (load(*record))
            return true;
    }
    return false;
}

bool Walk::load(Statement& statement) {
    if (!statement.step())
        return false;
    current_ = rowOf(statement);
    return true;
}

void Walk::last() {
    end();
    orEnd([this] {
        if (lastAdded())
            return;
        const StatementLease record = database().prepare(form().last);
        query_.bind(*record);
        place_ = load(*record) ? Place::OnRecord : Place::End;
        interrupted_ = form().wholeTable; // records added from now on come after it
    });
}

bool Walk::lastAdded() {
    for (addedAt_ = added_.size(); addedAt_ > 0;) {
        const StatementLease record = database().prepare(form().byRowid);
        record->bind(1, added_[--addedAt_]);
        if (!load(*record))
            continue;
        addedAt_ = added_.size();
        place_ = Place::OnRecord;
        return true;
    }
    return false;
}

qint64 Walk::count() {
    if (!count_)
        count_ = countNow();
    return *count_;
}

// Counts without the added records. They are at the end of the table, so only records with a smaller rowid than the
// first of them count.
qint64 Walk::countNow() const {
    const bool apart = !added_.empty();
    const StatementLease number = database().prepare(apart ? form().countBelow : form().count);
    query_.bind(*number);
    if (apart)
        number->bind(form().parameters + 1, added_.front());
    number->step();
    return number->integer(0) + static_cast<qint64>(added_.size());
}

void Walk::requireRecord() {
    start();
    if (place_ != Place::OnRecord)
        throw StoreError(StoreError::Kind::Other, database_ == nullptr ? QString() : database_->percorso(),
                         QStringLiteral("nessun record corrente in %1").arg(tabella().nome));
}

qint64 Walk::rowid() {
    requireRecord();
    return current_.rowid;
}

QString Walk::text(std::size_t field) {
    requireRecord();
    if (onCursor_)
        return cursor_->text(static_cast<int>(field) + 1);
    const auto* const text = std::get_if<QString>(&current_.valori[field]);
    return text == nullptr ? QString() : *text;
}

Valore Walk::value(std::size_t field) {
    requireRecord();
    return onCursor_ ? cursor_->value(static_cast<int>(field) + 1) : current_.valori[field];
}

bool Walk::isNull(std::size_t field) {
    requireRecord();
    return onCursor_ ? cursor_->isNull(static_cast<int>(field) + 1)
                     : std::holds_alternative<std::monostate>(current_.valori[field]);
}

void Walk::added(qint64 rowid) {
    if (count_)
        ++*count_;
    if (!form().wholeTable)
        added_.push_back(rowid);
}

void Walk::changed(std::size_t field, Valore value) {
    current_.valori[field] = std::move(value);
}

void Walk::deleted() {
    const auto it = std::lower_bound(added_.begin(), added_.end(), current_.rowid);
    if (it != added_.end() && *it == current_.rowid) {
        addedAt_ -= static_cast<std::size_t>(it - added_.begin()) < addedAt_ ? 1 : 0;
        added_.erase(it);
    }
    if (count_)
        --*count_;
    place_ = Place::Deleted;
    --current_.rowid; // the rowid is free: a record added next may get it and must then come after this place
}

// A running statement would prevent further reads of a file after a failure. A walk of a whole table may continue. The
// records of any other query may have changed.
void Walk::rolledBack() noexcept {
    const bool goesOn = cursor_ && form().wholeTable;
    const Place place = place_;
    bool kept = true;
    try {
        if (onCursor_)
            current_ = rowOf(*cursor_);
    } catch (...) {
        kept = false;
    }
    const bool before = interrupted_;
    end();
    if (kept) {
        place_ = place;
        interrupted_ = goesOn || before;
    }
    added_.clear();
    addedAt_ = 0;
    count_.reset();
}

void Walk::beforeWriting(const TableInfo& table) {
    if (!cursor_ || (!table.nome.isEmpty() && table.nome != tabella().nome))
        return;
    orEnd([this] {
        if (onCursor_)
            current_ = rowOf(*cursor_);
        onCursor_ = false;
        if (form().wholeTable) {
            interrupted_ = true;
        } else {
            while (stepCursor())
                rest_.push_back(rowOf(*cursor_));
        }
        cursor_.giveBack();
    });
}

Riga Walk::rowOf(const Statement& statement) const {
    Riga row;
    row.rowid = statement.integer(0);
    const std::size_t fields = tabella().campi.size();
    row.valori.reserve(fields);
    for (std::size_t field = 0; field < fields; ++field)
        row.valori.push_back(statement.value(static_cast<int>(field) + 1));
    return row;
}

} // namespace vanzer::store
