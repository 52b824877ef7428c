// One connection to an archive file: held alone for its whole life, safe against a crash at any point.
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

/// A set that is being walked. It must step aside before its table is written.
class LiveSet {
  public:
    LiveSet() = default;
    LiveSet(const LiveSet&) = delete;
    LiveSet& operator=(const LiveSet&) = delete;
    virtual ~LiveSet() = default;

    /// Reads what it still needs of its table.
    virtual void beforeWriting(const TableInfo& table) = 0;
    /// What was written last is rolled back: nothing that this has open may stay so.
    virtual void rolledBack() noexcept = 0;
    /// The connection goes; nothing of it may be used any more.
    virtual void abandon() noexcept = 0;
};

class Database {
  public:
    /// Opens an existing file. A journal that a killed program left is rolled back into it, or put aside if it belongs
    /// to another file or another state of this one. Throws NotFound; Busy if any other connection has it; Corrupt if
    /// it is no archive; Newer; ReadOnly if the file or its directory can't be written.
    [[nodiscard]] static std::unique_ptr<Database> open(const QString& path);
    /// Makes a new empty file. The same failures.
    [[nodiscard]] static std::unique_ptr<Database> create(const QString& path);

    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    /// Rolls back an open command, lets go of the file and leaves nothing beside it.
    ~Database();

    [[nodiscard]] const QString& percorso() const { return path_; }
    /// Where a journal lies now that wasn't this file's; empty if there was none.
    [[nodiscard]] const QString& giornaleEstraneo() const { return strayJournal_; }

    [[nodiscard]] QStringList tabelle();
    /// The stored table of that name, case ignored; null if there is none.
    [[nodiscard]] std::shared_ptr<const TableInfo> tabella(const QString& name);
    /// Logical names of a table's indexes, in the order of their making; internal ones aren't told.
    [[nodiscard]] QStringList indici(const QString& table);
    /// By its name in the file.
    [[nodiscard]] bool hasIndex(const QString& name);
    void createTable(const QString& name, const std::vector<FieldDef>& fields);
    /// Runs a statement that changes the schema.
    void changeSchema(const QByteArray& sql);

    /// A statement for exclusive use; prepared once and kept (the system has a few dozen different ones).
    [[nodiscard]] StatementLease prepare(const QByteArray& sql);
    /// Runs a statement that writes `table`: first all sets on it step aside and, within a command, the transaction
    /// begins. Returns the number of records changed. A failure spoils the command.
    qint64 write(const TableInfo& table, Statement& statement);
    [[nodiscard]] qint64 ultimoRowid() const;

    /// Commands may be nested. The first write within one begins a transaction, the end of the outermost commits it.
    void beginCommand() { ++depth_; }
    /// Throws what spoiled the command, if something did; then, as when the commit itself fails, nothing is stored.
    void commitCommand();
    /// Undoes all that the outermost command wrote; it can only be rolled back from there on.
    void rollbackCommand() noexcept;
    /// Stores what the running command has written so far; it goes on. Throws as commitCommand.
    void storeSoFar();
    /// Runs what writes nothing but what can be made anew from the rest. If that fails, now or when it is stored, and
    /// nothing else waits to be stored with it, it is undone and no failure.
    void writeDerived(const std::function<void()>& write);
    /// Undoes what the running command has written since then; it goes on with a clean sheet.
    void undoSoFar() noexcept;
    [[nodiscard]] bool inTransaction() const;

    void add(LiveSet& set);
    void remove(LiveSet& set) noexcept;

    /// Translated queries by their shape.
    [[nodiscard]] QHash<QString, std::shared_ptr<const Translation>>& traduzioni() { return translations_; }

    /// How far a copy has come, in pages; false leaves it.
    using CopyProgress = std::function<bool(qint64 done, qint64 total)>;
    /// Copies the whole file into another, page by page; `progress` is asked each 2 MB but not at the end. False if it
    /// was left: the other file is then as it was.
    [[nodiscard]] bool copyInto(Database& other, const CopyProgress& progress);
    /// False if the file is damaged inside; whether the indexes agree with their tables isn't looked at.
    [[nodiscard]] bool intatto();
    /// Whether the file is as a program left it that had found it sound and ended in order.
    [[nodiscard]] bool chiusoInOrdine() const { return sound_; }
    enum class Salute { Sano, IndiciRifatti, Danneggiato };
    /// Looks at everything, and makes the indexes anew where nothing but they is wrong. Takes about 5 us a record.
    [[nodiscard]] Salute check();
    /// Whether the file bears the number of a format: archives of the first versions don't.
    [[nodiscard]] bool hasFormat() const;
    /// Gives the file the number of our format and a version of its own: what was copied from another file isn't taken
    /// for it any more.
    void makeDistinct();
    /// The declared type of a field, reduced to what a type may hold.
    [[nodiscard]] QByteArray tipo(const QString& table, const QString& field);
    /// The statements that made a table and its indexes.
    [[nodiscard]] QByteArrayList dichiarazioni(const QString& table);

    /// The plan that the engine has for a statement, a line for each step.
    [[nodiscard]] QStringList piano(const QByteArray& sql);
    /// Steps of the engine's machine that all kept statements have run so far: how much work was done.
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
    bool waiting_ = false; ///< something that can't be made anew waits to be stored
    quint32 version_ = 0;  ///< of what is stored: each transaction has its own
    quint32 next_ = 0;     ///< that of the running transaction
    qint64 size_ = 0;      ///< bytes of the file as it was last stored
    int spillsBefore_ = 0; ///< pages that had to be written in mid-transaction, until the running one
    bool sound_ = false;
    QString strayJournal_;
    std::optional<StoreError> spoiled_;
};

/// A command that is rolled back unless it was committed.
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
