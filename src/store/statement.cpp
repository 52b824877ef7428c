// SPDX-License-Identifier: MIT
#include "store/statement.h"

#include <sqlite3.h>

#include "store/error.h"

namespace vanzer::store {

namespace {

template<class... Cases> struct Match : Cases... { using Cases::operator()...; };
template<class... Cases> Match(Cases...) -> Match<Cases...>;

/// Keeps a byte order mark at the start as a character; QString::fromUtf8 would drop it.
QString decoded(QByteArrayView utf8) {
    constexpr QByteArrayView mark("\xEF\xBB\xBF");
    if (!utf8.startsWith(mark))
        return QString::fromUtf8(utf8);
    qsizetype marks = 0;
    while (utf8.sliced(marks * mark.size()).startsWith(mark))
        ++marks;
    return QString(marks, QChar(QChar::ByteOrderMark)) + QString::fromUtf8(utf8.sliced(marks * mark.size()));
}

} // namespace

void Statement::Finalizer::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

Statement::Statement(sqlite3* connection, const QByteArray& sql, const QString& path) : path_(path) {
    sqlite3_stmt* statement = nullptr;
    const int result = sqlite3_prepare_v3(connection, sql.constData(), static_cast<int>(sql.size()),
                                          SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    statement_.reset(statement);
    if (result != SQLITE_OK)
        throw StoreError(kindOfResult(result), path_, QString::fromUtf8(sqlite3_errmsg(connection)));
}

void Statement::check(int resultCode) const {
    if (resultCode != SQLITE_OK)
        throw StoreError(kindOfResult(resultCode), path_,
                         QString::fromUtf8(sqlite3_errmsg(sqlite3_db_handle(statement_.get()))));
}

bool Statement::step() {
    const int result = sqlite3_step(statement_.get());
    if (result == SQLITE_ROW)
        return true;
    if (result != SQLITE_DONE) {
        const StoreError error(kindOfResult(result), path_,
                               QString::fromUtf8(sqlite3_errmsg(sqlite3_db_handle(statement_.get()))));
        sqlite3_reset(statement_.get());
        throw error;
    }
    return false;
}

void Statement::reset() {
    sqlite3_reset(statement_.get());
}

void Statement::clear() {
    sqlite3_reset(statement_.get());
    sqlite3_clear_bindings(statement_.get());
}

void Statement::bind(int parameter, const Valore& value) {
    std::visit(Match{[&](std::monostate) { bindNull(parameter); }, [&](qint64 x) { bind(parameter, x); },
                     [&](double x) { check(sqlite3_bind_double(statement_.get(), parameter, x)); },
                     [&](const QString& text) { bindText(parameter, QStringView(text)); },
                     [&](const QByteArray& bytes) {
                         check(sqlite3_bind_blob64(statement_.get(), parameter, bytes.constData(),
                                                   static_cast<sqlite3_uint64>(bytes.size()), SQLITE_TRANSIENT));
                     }},
               value);
}

void Statement::bind(int parameter, qint64 value) {
    check(sqlite3_bind_int64(statement_.get(), parameter, value));
}

void Statement::bindText(int parameter, const QByteArray& utf8) {
    check(sqlite3_bind_text(statement_.get(), parameter, utf8.constData(), static_cast<int>(utf8.size()),
                            SQLITE_TRANSIENT));
}

void Statement::bindText(int parameter, QStringView text) {
    bindText(parameter, text.toUtf8());
}

void Statement::bindNull(int parameter) {
    check(sqlite3_bind_null(statement_.get(), parameter));
}

void Statement::bindColumn(int parameter, const Statement& from, int column) {
    check(sqlite3_bind_value(statement_.get(), parameter, sqlite3_column_value(from.statement_.get(), column)));
}

bool Statement::isNull(int column) const {
    return sqlite3_column_type(statement_.get(), column) == SQLITE_NULL;
}

bool Statement::isText(int column) const {
    return sqlite3_column_type(statement_.get(), column) == SQLITE_TEXT;
}

qint64 Statement::integer(int column) const {
    return sqlite3_column_int64(statement_.get(), column);
}

QString Statement::text(int column) const {
    const auto* const utf8 = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
    if (utf8 == nullptr)
        return {};
    return decoded({utf8, sqlite3_column_bytes(statement_.get(), column)});
}

int Statement::bytes(int column) const {
    return sqlite3_column_bytes(statement_.get(), column);
}

Valore Statement::value(int column) const {
    switch (sqlite3_column_type(statement_.get(), column)) {
    case SQLITE_INTEGER: return integer(column);
    case SQLITE_FLOAT: return sqlite3_column_double(statement_.get(), column);
    case SQLITE_TEXT: return text(column);
    case SQLITE_BLOB: {
        const auto* const data = static_cast<const char*>(sqlite3_column_blob(statement_.get(), column));
        return QByteArray(data, bytes(column));
    }
    default: return {};
    }
}

StatementLease& StatementLease::operator=(StatementLease&& other) noexcept {
    if (this != &other) {
        giveBack();
        statement_ = std::move(other.statement_);
        home_ = other.home_;
    }
    return *this;
}

void StatementLease::giveBack() noexcept {
    if (statement_ == nullptr)
        return;
    statement_->clear();
    try {
        home_->push_back(std::move(statement_));
    } catch (const std::bad_alloc&) {
        statement_.reset();
    }
}

} // namespace vanzer::store
