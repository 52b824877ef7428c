// SPDX-License-Identifier: MIT
#include "store/database.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <limits>
#include <string_view>
#include <system_error>
#include <utility>

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <sqlite3.h>

#include "core/collation.h"
#include "store/query_sql.h"

namespace vanzer::store {

namespace {

int collate(void* /*unused*/, int sizeA, const void* a, int sizeB, const void* b) {
    return compare({static_cast<const char*>(a), static_cast<std::size_t>(sizeA)},
                   {static_cast<const char*>(b), static_cast<std::size_t>(sizeB)});
}

std::string_view textOf(sqlite3_value* value) {
    const auto* const utf8 = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return utf8 == nullptr ? std::string_view()
                           : std::string_view(utf8, static_cast<std::size_t>(sqlite3_value_bytes(value)));
}

void likeFunction(sqlite3_context* context, int /*count*/, sqlite3_value** arguments) {
    const bool found =
        sqlite3_value_type(arguments[1]) != SQLITE_NULL && resembles(textOf(arguments[0]), textOf(arguments[1]));
    sqlite3_result_int(context, static_cast<int>(found));
}

/// The kind of error for a file that the engine can't open.
StoreError::Kind kindOfOpening(int resultCode, const QFileInfo& file) {
    if ((resultCode & 0xff) != SQLITE_CANTOPEN)
        return kindOfResult(resultCode);
    if (!QFileInfo(file.path()).isDir())
        return StoreError::Kind::NotFound;
    if (file.exists())
        return file.isFile() && !file.isReadable() ? StoreError::Kind::ReadOnly : StoreError::Kind::Io;
    return QFileInfo(file.path()).isWritable() ? StoreError::Kind::Io : StoreError::Kind::ReadOnly;
}

/// A random version. Two files have the same one with a chance of 1 in 2 thousand million.
quint32 versionByChance() {
    return QRandomGenerator::global()->bounded(1U, static_cast<quint32>(std::numeric_limits<qint32>::max()));
}

/// The fraction of a second that a file's time of change gets when the file is closed in order. A later write to the
/// file, or the loss of such a write, changes it.
std::chrono::microseconds sign(quint32 version) {
    return std::chrono::microseconds(1 + version % 999'999);
}

bool endedInOrder(const QString& path, quint32 version) {
    std::error_code error;
    const auto changed = std::filesystem::last_write_time(QFileInfo(path).filesystemFilePath(), error);
    return !error && changed - std::chrono::floor<std::chrono::seconds>(changed) == sign(version);
}

void signEnd(const QString& path, quint32 version) {
    std::error_code error;
    const auto file = QFileInfo(path).filesystemFilePath();
    const auto changed = std::filesystem::last_write_time(file, error);
    if (!error)
        std::filesystem::last_write_time(file, std::chrono::floor<std::chrono::seconds>(changed) + sign(version),
                                         error);
}

} // namespace

void Database::Closer::operator()(sqlite3* connection) const {
    sqlite3_close_v2(connection);
}

std::unique_ptr<Database> Database::open(const QString& path) {
    const QFileInfo file(path);
    if (!file.exists())
        throw StoreError(StoreError::Kind::NotFound, path);
    // Writing needs a journal beside the file. Fail now rather than at the first write.
    if (!QFileInfo(file.path()).isWritable())
        throw StoreError(StoreError::Kind::ReadOnly, path);
    return std::unique_ptr<Database>(new Database(path, SQLITE_OPEN_READWRITE));
}

std::unique_ptr<Database> Database::create(const QString& path) {
    std::unique_ptr<Database> made(new Database(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE));
    made->sound_ = true;
    return made;
}

// In exclusive mode the first transaction takes the lock and keeps it to the end. That transaction also rolls back what
// a killed program left unfinished, and fails if the file isn't a database.
Database::Database(const QString& path, int flags) : path_(path) {
    sqlite3* connection = nullptr;
    const int result =
        sqlite3_open_v2(QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath()).toUtf8().constData(), &connection,
                        flags | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
    connection_.reset(connection);
    if (result != SQLITE_OK)
        throw StoreError(kindOfOpening(result, QFileInfo(path)), path_, QString::fromUtf8(sqlite3_errmsg(connection)));
    harden();
    sqlite3_create_collation_v2(connection, "VANZER", SQLITE_UTF8, nullptr, collate, nullptr);
    sqlite3_create_function_v2(connection, "somiglia", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, likeFunction,
                               nullptr, nullptr, nullptr);
    if ((flags & SQLITE_OPEN_CREATE) == 0)
        acceptFile();
    run("PRAGMA locking_mode=EXCLUSIVE");
    run("PRAGMA synchronous=FULL");
    run("PRAGMA temp_store=MEMORY");
    run("PRAGMA cache_size=-16000");
    run("BEGIN EXCLUSIVE");
    run("SELECT count(*) FROM sqlite_schema");
    run("COMMIT");
    run("PRAGMA journal_mode=DELETE");
    version_ = storedVersion();
    size_ = sizeOnDisk();
    sound_ = endedInOrder(path_, version_);
}

Database::~Database() {
    for (LiveSet* const set : std::exchange(sets_, {}))
        set->abandon();
    rollbackNow();
    statements_.clear();
    try {
        leave();
    } catch (...) {
        sound_ = false; // not signed as closed in order: the next start checks the whole file
    }
}

void Database::leave() {
    const bool asLeft = isAsLeft();
    // In exclusive mode an empty journal stays beside the file. Changing the journal mode in normal mode removes it,
    // also one that a killed program left. If another file has taken this one's place, the journal may be another
    // program's and stays.
    if (asLeft && QFileInfo::exists(journal()))
        sqlite3_exec(connection_.get(),
                     "PRAGMA locking_mode=NORMAL; SELECT count(*) FROM sqlite_schema; "
                     "PRAGMA journal_mode=PERSIST; PRAGMA journal_mode=DELETE",
                     nullptr, nullptr, nullptr);
    connection_.reset();
    if (asLeft && sound_)
        signEnd(path_, version_);
}

// Treats the file as data only: no trigger or view of it runs, and its schema can't call functions.
void Database::harden() {
    sqlite3* const connection = connection_.get();
    struct Switch {
        int which;
        int on;
    };
    for (const auto& [which, on] : {Switch{SQLITE_DBCONFIG_DEFENSIVE, 1},
                                    {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
                                    {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
                                    {SQLITE_DBCONFIG_ENABLE_VIEW, 0},
                                    {SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0}})
        sqlite3_db_config(connection, which, on, nullptr);
    constexpr int megabyte = 1 << 20;
    for (const auto& [which, most] : {Switch{SQLITE_LIMIT_LENGTH, 64 * megabyte},
                                      {SQLITE_LIMIT_SQL_LENGTH, megabyte},
                                      {SQLITE_LIMIT_EXPR_DEPTH, 100},
                                      {SQLITE_LIMIT_COMPOUND_SELECT, 10},
                                      {SQLITE_LIMIT_ATTACHED, 0},
                                      {SQLITE_LIMIT_TRIGGER_DEPTH, 1}})
        sqlite3_limit(connection, which, most);
    run("PRAGMA cell_size_check=ON");
}

sqlite3_file& Database::rawFile() const {
    sqlite3_file* file = nullptr;
    sqlite3_file_control(connection_.get(), "main", SQLITE_FCNTL_FILE_POINTER, &file);
    return *file;
}

std::optional<FileHead> Database::headOnDisk() const {
    QByteArray bytes(dimensioneTesta, '\0');
    sqlite3_file& file = rawFile();
    const int result = file.pMethods->xRead(&file, bytes.data(), static_cast<int>(bytes.size()), 0);
    if (result != SQLITE_OK && result != SQLITE_IOERR_SHORT_READ)
        throw StoreError(kindOfResult(result), path_, QString::fromUtf8(sqlite3_errstr(result)));
    return fileHead(bytes);
}

qint64 Database::sizeOnDisk() const {
    sqlite3_int64 size = 0;
    sqlite3_file& file = rawFile();
    if (const int result = file.pMethods->xFileSize(&file, &size); result != SQLITE_OK)
        throw StoreError(kindOfResult(result), path_, QString::fromUtf8(sqlite3_errstr(result)));
    return size;
}

QString Database::journal() const {
    return QString::fromUtf8(sqlite3_filename_journal(sqlite3_db_filename(connection_.get(), "main")));
}

void Database::acceptFile() {
    const auto head = headOnDisk();
    const auto format = head ? head->formato() : std::nullopt;
    if (!format || sizeOnDisk() < leastFile)
        throw StoreError(StoreError::Kind::Corrupt, path_);
    if (*format > formatoAttuale)
        throw StoreError(StoreError::Kind::Newer, path_, QString::number(*format));
    if (const QFileInfo left(journal()); left.exists() || left.isSymLink())
        putForeignJournalAside();
}

// Holds the lock meanwhile: another program that has the archive open may be writing its journal.
void Database::putForeignJournalAside() {
    struct Lock {
        sqlite3_file& file;
        ~Lock() { file.pMethods->xUnlock(&file, SQLITE_LOCK_NONE); }
    };
    const Lock lock{rawFile()};
    for (const int level : {SQLITE_LOCK_SHARED, SQLITE_LOCK_RESERVED, SQLITE_LOCK_EXCLUSIVE}) {
        if (const int result = lock.file.pMethods->xLock(&lock.file, level); result != SQLITE_OK)
            throw StoreError(kindOfResult(result), path_, QString::fromUtf8(sqlite3_errstr(result)));
    }
    if (!isForeignJournal(journal(), headOnDisk().value_or(FileHead()), sizeOnDisk()))
        return;
    QString aside = journal() + QStringLiteral(".estraneo");
    for (int n = 2; QFileInfo::exists(aside); ++n)
        aside = journal() + QStringLiteral(".estraneo%1").arg(n);
    std::error_code error;
    std::filesystem::rename(QFileInfo(journal()).filesystemFilePath(), QFileInfo(aside).filesystemFilePath(), error);
    if (error)
        throw StoreError(StoreError::Kind::Io, journal(), QString::fromStdString(error.message()));
    strayJournal_ = aside;
}

StoreError Database::lastError(int resultCode) const {
    return {kindOfResult(resultCode), path_, QString::fromUtf8(sqlite3_errmsg(connection_.get()))};
}

void Database::run(const char* sql) {
    const int result = sqlite3_exec(connection_.get(), sql, nullptr, nullptr, nullptr);
    if (result != SQLITE_OK)
        throw lastError(result);
}

QStringList Database::tabelle() {
    QStringList names;
    const StatementLease list =
        prepare("SELECT name FROM sqlite_schema WHERE type='table' AND name NOT GLOB 'sqlite_*' ORDER BY rowid");
    while (list->step())
        names += list->text(0);
    return names;
}

std::shared_ptr<const TableInfo> Database::tabella(const QString& name) {
    const QString key = name.toCaseFolded();
    if (const auto known = tables_.constFind(key); known != tables_.cend())
        return *known;
    const QStringList names = tabelle();
    const auto found = std::find_if(names.begin(), names.end(),
                                    [&](const QString& n) { return n.compare(name, Qt::CaseInsensitive) == 0; });
    if (found == names.end())
        return nullptr;
    auto table = std::make_shared<TableInfo>();
    table->nome = *found;
    const StatementLease fields = prepare("SELECT name, type FROM pragma_table_info(?)");
    fields->bindText(1, QStringView(*found));
    while (fields->step())
        table->campi.push_back(fieldOfType(fields->text(0), fields->text(1)));
    table->selezione = selectSql(*table);
    table->inserimento = insertSql(*table);
    tables_.insert(key, table);
    return table;
}

QStringList Database::indici(const QString& table) {
    QStringList names;
    const StatementLease list =
        prepare("SELECT name FROM sqlite_schema WHERE type='index' AND tbl_name=? COLLATE VANZER ORDER BY rowid");
    list->bindText(1, QStringView(table));
    while (list->step()) {
        const QString name = logicalIndexName(table, list->text(0));
        if (!name.isEmpty())
            names += name;
    }
    return names;
}

bool Database::hasIndex(const QString& name) {
    const StatementLease found = prepare("SELECT 1 FROM sqlite_schema WHERE type='index' AND name=? COLLATE NOCASE");
    found->bindText(1, QStringView(name));
    return found->step();
}

void Database::createTable(const QString& name, const std::vector<FieldDef>& fields) {
    changeSchema(createTableSql(name, fields));
}

void Database::changeSchema(const QByteArray& sql) {
    const StatementLease change = prepare(sql);
    write(TableInfo(), *change);
    tables_.clear();
    translations_.clear();
}

StatementLease Database::prepare(const QByteArray& sql) {
    StatementPool& pool = statements_[sql.toStdString()];
    if (pool.empty())
        return {std::make_unique<Statement>(connection_.get(), sql, path_), pool};
    std::unique_ptr<Statement> statement = std::move(pool.back());
    pool.pop_back();
    return {std::move(statement), pool};
}

void Database::beforeWrite(const TableInfo& table) {
    if (spoiled_)
        throw StoreError(*spoiled_);
    for (LiveSet* const set : sets_)
        set->beforeWriting(table);
    if (!inTransaction())
        beginTransaction();
}

qint64 Database::write(const TableInfo& table, Statement& statement) {
    if (depth_ == 0) {
        Transaction alone(*this);
        const qint64 changed = write(table, statement);
        alone.commit();
        return changed;
    }
    waiting_ = true;
    try {
        beforeWrite(table);
        statement.step();
        statement.reset();
    } catch (const StoreError& error) {
        if (!spoiled_)
            spoiled_ = error;
        throw;
    }
    return sqlite3_changes64(connection_.get());
}

qint64 Database::ultimoRowid() const {
    return sqlite3_last_insert_rowid(connection_.get());
}

void Database::commitCommand() {
    if (depth_ == 0)
        throw StoreError(StoreError::Kind::Other, path_, QStringLiteral("nessun comando in corso"));
    if (--depth_ > 0)
        return;
    storeSoFar();
}

quint32 Database::storedVersion() {
    const StatementLease version = prepare("PRAGMA user_version");
    version->step();
    return static_cast<quint32>(version->integer(0));
}

// On Unix a program can go on writing to a file that was removed or renamed. Nobody would find those data again.
bool Database::inPlace() const {
    int moved = 0;
    sqlite3_file_control(connection_.get(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved == 0;
}

int Database::spills() const {
    int spilled = 0;
    int highest = 0;
    sqlite3_db_status(connection_.get(), SQLITE_DBSTATUS_CACHE_SPILL, &spilled, &highest, 0);
    return spilled;
}

// Throws if the file was moved or another program wrote to it: its data must not be overwritten with ours.
void Database::requireUnchanged() const {
    if (!inPlace())
        throw StoreError(StoreError::Kind::NotFound, path_);
    const auto head = headOnDisk();
    const qint64 size = sizeOnDisk();
    const bool spilled = inTransaction() && spills() != spillsBefore_;
    const bool same = size == size_ && (size == 0 || (head && head->version == version_));
    const bool growing = spilled && size >= size_ && head && (head->version == version_ || head->version == next_);
    if (!same && !growing)
        throw StoreError(StoreError::Kind::Replaced, path_);
}

bool Database::isAsLeft() const {
    try {
        requireUnchanged();
    } catch (const StoreError&) {
        return false;
    }
    return true;
}

void Database::setVersion(quint32 version) {
    run(("PRAGMA user_version=" + QByteArray::number(version)).constData());
    next_ = version;
}

// Writes the version first, so that the journal begins with page 1, which holds the head of the file.
void Database::beginTransaction() {
    run("BEGIN IMMEDIATE");
    spillsBefore_ = spills();
    requireUnchanged();
    setVersion(version_ == 0 ? versionByChance() : nextVersion(version_));
}

// If the disk fails in the last step of a commit, the engine reports a failure although everything is stored. The
// stored version shows what happened.
void Database::commitTransaction() {
    std::optional<StoreError> failure;
    try {
        requireUnchanged();
        run("COMMIT");
    } catch (const StoreError& error) {
        failure = error;
        rollbackNow();
    }
    if (failure && storedVersion() != next_)
        throw StoreError(*failure);
    version_ = next_;
    size_ = sizeOnDisk();
}

void Database::storeSoFar() {
    const bool needed = std::exchange(waiting_, false) || spoiled_;
    try {
        if (const std::optional<StoreError> failure = std::exchange(spoiled_, std::nullopt))
            throw StoreError(*failure);
        if (inTransaction())
            commitTransaction();
    } catch (const StoreError&) {
        rollbackNow();
        if (needed)
            throw;
    }
}

void Database::writeDerived(const std::function<void()>& write) {
    const bool waiting = std::exchange(waiting_, false);
    try {
        write();
    } catch (const StoreError&) {
        if (waiting)
            throw;
        undoSoFar();
    }
    waiting_ = waiting;
}

void Database::rollbackCommand() noexcept {
    if (depth_ == 0)
        return;
    rollbackNow();
    if (--depth_ == 0) {
        spoiled_.reset();
        waiting_ = false;
    } else if (!spoiled_)
        spoiled_.emplace(StoreError::Kind::Other, path_, QStringLiteral("comando annullato"));
}

void Database::rollbackNow() noexcept {
    for (LiveSet* const set : sets_)
        set->rolledBack();
    if (inTransaction())
        sqlite3_exec(connection_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
    tables_.clear();
    translations_.clear();
}

void Database::undoSoFar() noexcept {
    rollbackNow();
    spoiled_.reset();
    waiting_ = false;
}

bool Database::inTransaction() const {
    return sqlite3_get_autocommit(connection_.get()) == 0;
}

void Database::add(LiveSet& set) {
    sets_.push_back(&set);
}

void Database::remove(LiveSet& set) noexcept {
    sets_.erase(std::remove(sets_.begin(), sets_.end(), &set), sets_.end());
}

bool Database::copyInto(Database& other, const CopyProgress& progress) {
    constexpr int step = 512; // pages
    struct Finisher {
        void operator()(sqlite3_backup* backup) const { sqlite3_backup_finish(backup); }
    };
    std::unique_ptr<sqlite3_backup, Finisher> backup(
        sqlite3_backup_init(other.connection_.get(), "main", connection_.get(), "main"));
    if (backup == nullptr)
        throw other.lastError(sqlite3_extended_errcode(other.connection_.get()));
    for (;;) {
        const int result = sqlite3_backup_step(backup.get(), step);
        if (result == SQLITE_DONE)
            break;
        if (result != SQLITE_OK)
            throw StoreError(kindOfResult(result), other.path_, QString::fromUtf8(sqlite3_errstr(result)));
        const qint64 total = sqlite3_backup_pagecount(backup.get());
        if (progress && !progress(total - sqlite3_backup_remaining(backup.get()), total))
            return false;
    }
    if (const int result = sqlite3_backup_finish(backup.release()); result != SQLITE_OK)
        throw other.lastError(result);
    other.version_ = other.storedVersion();
    other.size_ = other.sizeOnDisk();
    return true;
}

bool Database::intatto() {
    const StatementLease check = prepare("PRAGMA quick_check(1)");
    return check->step() && check->text(0) == u"ok";
}

Database::Salute Database::check() {
    const auto agrees = [this] {
        const StatementLease check = prepare("PRAGMA integrity_check(1)");
        return check->step() && check->text(0) == u"ok";
    };
    try {
        Salute health = Salute::Sano;
        if (!agrees() && !agrees()) { // try twice: a single failed read looks like damage
            Transaction indexes(*this);
            changeSchema("REINDEX");
            if (!agrees())
                return Salute::Danneggiato;
            indexes.commit();
            health = Salute::IndiciRifatti;
        }
        sound_ = true;
        return health;
    } catch (const StoreError& error) {
        if (error.kind() != StoreError::Kind::Corrupt)
            throw;
        return Salute::Danneggiato;
    }
}

bool Database::hasFormat() const {
    const auto head = headOnDisk();
    return head && head->formato().value_or(0) > 0;
}

void Database::makeDistinct() {
    Transaction all(*this);
    changeSchema("PRAGMA application_id=" + QByteArray::number(applicazione));
    setVersion(versionByChance());
    all.commit();
}

QByteArray Database::tipo(const QString& table, const QString& field) {
    const StatementLease declared = prepare("SELECT type FROM pragma_table_info(?) WHERE name=?");
    declared->bindText(1, QStringView(table));
    declared->bindText(2, QStringView(field));
    static const QRegularExpression others(QStringLiteral("[^A-Za-z0-9 (),]"));
    return declared->step() ? declared->text(0).remove(others).toUtf8() : QByteArray();
}

QByteArrayList Database::dichiarazioni(const QString& table) {
    const StatementLease made = prepare("SELECT sql FROM sqlite_schema WHERE tbl_name=? AND type IN ('table','index') "
                                        "AND sql IS NOT NULL ORDER BY type DESC, rowid");
    made->bindText(1, QStringView(table));
    QByteArrayList statements;
    while (made->step())
        statements += made->text(0).toUtf8();
    return statements;
}

QStringList Database::piano(const QByteArray& sql) {
    QStringList lines;
    Statement plan(connection_.get(), "EXPLAIN QUERY PLAN " + sql, path_);
    while (plan.step())
        lines += plan.text(3);
    return lines;
}

qint64 Database::lavoro() const {
    qint64 steps = 0;
    for (sqlite3_stmt* s = sqlite3_next_stmt(connection_.get(), nullptr); s != nullptr;
         s = sqlite3_next_stmt(connection_.get(), s))
        steps += sqlite3_stmt_status(s, SQLITE_STMTSTATUS_VM_STEP, 0);
    return steps;
}

} // namespace vanzer::store
