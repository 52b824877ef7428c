// SPDX-License-Identifier: MIT
// A prepared statement of the engine, and a lease on one that the connection keeps for later use.
#pragma once

#include <memory>
#include <vector>

#include <QByteArray>
#include <QString>

#include "store/value.h"

struct sqlite3;
struct sqlite3_stmt;

namespace vanzer::store {

/// Parameters count from 1, columns from 0. Every failure throws StoreError with the path of the file.
class Statement {
  public:
    Statement(sqlite3* connection, const QByteArray& sql, const QString& path);

    /// Moves to the next row; false at the end.
    bool step();
    /// Makes it ready to run again. Bound values stay.
    void reset();
    /// Resets it and removes bound values.
    void clear();

    void bind(int parameter, const Valore& value);
    void bind(int parameter, qint64 value);
    /// Copies the UTF-8 text.
    void bindText(int parameter, const QByteArray& utf8);
    void bindText(int parameter, QStringView text);
    void bindNull(int parameter);
    /// Binds the value in a column of another statement, of any connection.
    void bindColumn(int parameter, const Statement& from, int column);

    [[nodiscard]] bool isNull(int column) const;
    [[nodiscard]] bool isText(int column) const;
    [[nodiscard]] qint64 integer(int column) const;
    [[nodiscard]] QString text(int column) const;
    /// Bytes of the value's text in UTF-8: an upper bound of its length in characters.
    [[nodiscard]] int bytes(int column) const;
    [[nodiscard]] Valore value(int column) const;

  private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const;
    };

    void check(int resultCode) const;

    std::unique_ptr<sqlite3_stmt, Finalizer> statement_;
    QString path_;
};

using StatementPool = std::vector<std::unique_ptr<Statement>>;

/// Exclusive use of a kept statement. The destructor clears it and gives it back.
class StatementLease {
  public:
    StatementLease() = default;
    StatementLease(std::unique_ptr<Statement> statement, StatementPool& home)
        : statement_(std::move(statement)), home_(&home) {}
    StatementLease(StatementLease&&) noexcept = default;
    StatementLease& operator=(StatementLease&& other) noexcept;
    StatementLease(const StatementLease&) = delete;
    StatementLease& operator=(const StatementLease&) = delete;
    ~StatementLease() { giveBack(); }

    void giveBack() noexcept;
    [[nodiscard]] explicit operator bool() const { return statement_ != nullptr; }
    Statement* operator->() const { return statement_.get(); }
    Statement& operator*() const { return *statement_; }

  private:
    std::unique_ptr<Statement> statement_;
    StatementPool* home_ = nullptr;
};

} // namespace vanzer::store
