// SPDX-License-Identifier: MIT
// A connection to an archive file. It is exclusive for its whole life, and a crash at any point leaves a valid file.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include "store/error.h"
#include "store/file_head.h"
#include "store/statement.h"
#include "store/table_info.h"

struct sqlite3_file;

namespace vanzer::store {

struct Translation;

/// An open set of records. The connection tells it about writes and rollbacks.
class LiveSet {
  public:
    LiveSet() = default;
    LiveSet(const LiveSet&) = delete;
    LiveSet& operator=(const LiveSet&) = delete;
    virtual ~LiveSet() = default;

    /// Called before `table` is written: the set reads what it still needs of it.
    virtual void beforeWriting(const TableInfo& table) = 0;
    /// Called before a rollback: the set must close its open statements.
    virtual void rolledBack() noexcept = 0;
    /// Called before the connection closes: the set must not use it any more.
    virtual void abandon() noexcept = 0;
};

class Database {
  public:
    /// Opens an existing file. Rolls back a journal that a killed program left, or renames it if it belongs to another
    /// file or another state of this one. Throws NotFound if there is no file; Busy if another connection has it open;
    /// Corrupt if it isn't an archive; Newer if its format is of a later version; ReadOnly if the file or its directory
    /// can't be written.
    [[nodiscard]] static std::unique_ptr<Database> open(const QString& path);
    /// Makes a new empty file. Throws as open().
    [[nodiscard]] static std::unique_ptr<Database> create(const QString& path);

    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    /// Rolls back an open command, closes the file and removes its journal.
    ~Database();

    [[nodiscard]] const QString& percorso() const { return path_; }
    /// New path of a journal that belonged to another file; empty if there was none.
    [[nodiscard]] const QString& giornaleEstraneo() const { return strayJournal_; }

    [[nodiscard]] QStringList tabelle();
    /// The table of that name in the file, case ignored; null if there is none.
    [[nodiscard]] std::shared_ptr<const TableInfo> tabella(const QString& name);
    /// Logical names of a table's indexes, in the order in which they were made. Internal indexes are left out.
    [[nodiscard]] QStringList indici(const QString& table);
    /// True if the file has an index of that (physical) name.
    [[nodiscard]] bool hasIndex(const QString& name);
    void createTable(const QString& name, const std::vector<FieldDef>& fields);
    /// Runs a statement that changes the schema.
    void changeSchema(const QByteArray& sql);

    /// A statement for exclusive use. Statements are prepared once and kept; there are a few dozen.
    [[nodiscard]] StatementLease prepare(const QByteArray& sql);
    /// Runs a statement that writes `table` and returns the number of changed records. First tells all open sets and,
    /// within a command, begins the transaction. After a failure the command can't be committed.
    qint64 write(const TableInfo& table, Statement& statement);
    [[nodiscard]] qint64 ultimoRowid() const;

    /// Begins a command. Commands may be nested. The first write begins a transaction; the outermost commit ends it.
    void beginCommand() { ++depth_; }
    /// Ends a command. Throws the failure of an earlier write of the command, or that of the commit. Then nothing is
    /// stored.
    void commitCommand();
    /// Ends a command and undoes all that the outermost command wrote. The commands around it can only be rolled back
    /// then.
    void rollbackCommand() noexcept;
    /// Commits what the running command has written so far; the command goes on. Throws as commitCommand.
    void storeSoFar();
    /// Runs `write`, which writes only derived data, that is data that can be made again from the rest. If it fails,
    /// now or at the commit, and no other data wait for that commit, it is undone and the failure is ignored.
    void writeDerived(const std::function<void()>& write);
    /// Undoes what the running command has written since the last commit, and forgets its failure; the command goes on.
    void undoSoFar() noexcept;
    [[nodiscard]] bool inTransaction() const;

    void add(LiveSet& set);
    void remove(LiveSet& set) noexcept;

    /// Translated queries by their form.
    [[nodiscard]] QHash<QString, std::shared_ptr<const Translation>>& traduzioni() { return translations_; }

    /// Progress of a copy in pages. Returns false to cancel it.
    using CopyProgress = std::function<bool(qint64 done, qint64 total)>;
    /// Copies the whole file into `other`. Calls `progress` every 512 pages (2 MB), but not at the end. False if it was
    /// cancelled; `other` is unchanged then.
    [[nodiscard]] bool copyInto(Database& other, const CopyProgress& progress);
    /// False if the file is damaged. Doesn't check that indexes match their tables.
    [[nodiscard]] bool intatto();
    /// True if the last program that had the file open found it sound and closed it in order, and nobody wrote to it
    /// since.
    [[nodiscard]] bool chiusoInOrdine() const { return sound_; }
    enum class Salute { Sano, IndiciRifatti, Danneggiato };
    /// Checks the whole file, and rebuilds the indexes if only they are wrong. Takes about 5 microseconds a record.
    [[nodiscard]] Salute check();
    /// True if the file has a format number. Archives of the first versions have none.
    [[nodiscard]] bool hasFormat() const;
    /// Gives the file the current format number and a new random version, so that a copy can be told from its original.
    void makeDistinct();
    /// The declared type of a field, without characters that a type may not contain.
    [[nodiscard]] QByteArray tipo(const QString& table, const QString& field);
    /// The SQL statements that create a table and its indexes.
    [[nodiscard]] QByteArrayList dichiarazioni(const QString& table);

    /// The engine's query plan for a statement, one line for each step.
    [[nodiscard]] QStringList piano(const QByteArray& sql);
    /// Virtual machine steps of all kept statements so far: a measure of the work done.
    [[nodiscard]] qint64 lavoro() const;

  private:
    struct Closer {
        void operator()(sqlite3* connection) const;
    };

    Database(const QString& path, int flags);

    void harden();
    void leave();
    void run(const char* sql);
    [[nodiscard]] sqlite3_file& rawFile() const;
    [[nodiscard]] std::optional<FileHead> headOnDisk() const;
    [[nodiscard]] qint64 sizeOnDisk() const;
    [[nodiscard]] QString journal() const;
    void acceptFile();
    void putForeignJournalAside();
    [[nodiscard]] int spills() const;
    void requireUnchanged() const;
    [[nodiscard]] bool isAsLeft() const;
    void setVersion(quint32 version);
    [[nodiscard]] quint32 storedVersion();
    [[nodiscard]] bool inPlace() const;
    void beginTransaction();
    void commitTransaction();
    void beforeWrite(const TableInfo& table);
    void rollbackNow() noexcept;
    [[nodiscard]] StoreError lastError(int resultCode) const;

    QString path_;
    std::unique_ptr<sqlite3, Closer> connection_;
    std::unordered_map<std::string, StatementPool> statements_;
    QHash<QString, std::shared_ptr<const TableInfo>> tables_;
    QHash<QString, std::shared_ptr<const Translation>> translations_;
    std::vector<LiveSet*> sets_;
    int depth_ = 0;
    bool waiting_ = false; ///< data other than derived data wait for the commit
    quint32 version_ = 0;  ///< stored version: each transaction has its own
    quint32 next_ = 0;     ///< version of the running transaction
    qint64 size_ = 0;      ///< bytes of the file after the last commit
    int spillsBefore_ = 0; ///< the engine's count of early page writes when the transaction began
    bool sound_ = false;
    QString strayJournal_;
    std::optional<StoreError> spoiled_;
};

/// A command, rolled back unless it is committed.
class Transaction {
  public:
    explicit Transaction(Database& database) : database_(&database) { database.beginCommand(); }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction() {
        if (database_ != nullptr)
            database_->rollbackCommand();
    }

    void commit() {
        Database* const database = database_;
        database_ = nullptr;
        database->commitCommand();
    }

  private:
    Database* database_;
};

} // namespace vanzer::store
