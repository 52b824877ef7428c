// A prepared statement of the engine, and the lease on one that its connection keeps for the next use.
#pragma once

#include <memory>
#include <vector>

#include <QByteArray>
#include <QString>

#include "store/value.h"

struct sqlite3;
struct sqlite3_stmt;

namespace vanzer::store {

/// Parameters count from 1, columns from 0. Every failure throws StoreError with the path of the connection.
class Statement {
  public:
    Statement(sqlite3* connection, const QByteArray& sql, const QString& path);

    /// True on a row, false at the end.
    bool step();
    /// Ready to run again; what is bound stays.
    void reset();
    /// Nothing bound, nothing running.
    void clear();

    void bind(int parameter, const Valore& value);
    void bind(int parameter, qint64 value);
    /// UTF-8, copied.
    void bindText(int parameter, const QByteArray& utf8);
    void bindText(int parameter, QStringView text);
    void bindNull(int parameter);
    /// Takes over the value that another statement, of any connection, shows in a column.
    void bindColumn(int parameter, const Statement& from, int column);

    [[nodiscard]] bool isNull(int column) const;
    [[nodiscard]] bool isText(int column) const;
    [[nodiscard]] qint64 integer(int column) const;
    [[nodiscard]] QString text(int column) const;
    /// Bytes of the value's text: an upper bound of its characters.
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

/// Exclusive use of a kept statement; at its end the statement goes back, cleared.
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
