#include "bare_archive.h"

#include <array>
#include <cstdio>
#include <stdexcept>
#include <string>

#include <sqlite3.h>

#include "core/collation.h"

namespace vanzer::bench {

namespace {

int collate(void*, int aLength, const void* a, int bLength, const void* b) {
    return confronta({static_cast<const char*>(a), static_cast<std::size_t>(aLength)},
                     {static_cast<const char*>(b), static_cast<std::size_t>(bLength)});
}

struct Finalizer {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalizer>;

Statement prepare(sqlite3* connection, const char* sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(connection, sql, -1, &statement, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(connection));
    return Statement(statement);
}

/// Walks a set and looks at every value.
long walk(sqlite3_stmt* statement) {
    long bytes = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        const int columns = sqlite3_column_count(statement);
        for (int c = 0; c < columns; ++c) {
            if (sqlite3_column_text(statement, c) != nullptr)
                bytes += sqlite3_column_bytes(statement, c);
        }
    }
    sqlite3_reset(statement);
    return bytes;
}

void bindText(sqlite3_stmt* statement, int parameter, const std::string& text) {
    sqlite3_bind_text(statement, parameter, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

std::string digits(const char* format, int n) {
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), format, n);
    return text.data();
}

} // namespace

void BareArchive::Closer::operator()(sqlite3* connection) const {
    sqlite3_close(connection);
}

BareArchive::BareArchive(const QString& path) {
    sqlite3* connection = nullptr;
    if (sqlite3_open(path.toUtf8().constData(), &connection) != SQLITE_OK)
        throw std::runtime_error("the copy of the archive can't be opened");
    connection_.reset(connection);
    sqlite3_create_collation_v2(connection, "VANZER", SQLITE_UTF8, nullptr, collate, nullptr);
    run("PRAGMA locking_mode=EXCLUSIVE");
    run("PRAGMA synchronous=FULL");
    run("PRAGMA cache_size=-16000");
}

BareArchive::~BareArchive() = default;

void BareArchive::run(const char* sql) {
    if (sqlite3_exec(connection_.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(connection_.get()));
}

long BareArchive::readLegs() {
    return walk(
        prepare(connection_.get(), "SELECT * FROM Itinerari WHERE CodiceMeta = '000001' ORDER BY Sequenza").get());
}

void BareArchive::rewriteLegs(int legs) {
    run("BEGIN");
    run("DELETE FROM Itinerari WHERE CodiceMeta = '000001'");
    const Statement insert =
        prepare(connection_.get(), "INSERT INTO Itinerari (CodiceMeta, Sequenza, Localita, Chilometri, NomeStrada, "
                                   "TipoStrada, TempoSosta, SostaGuidaCitta, FineGiorno, Start, Fine, Flag2) "
                                   "VALUES ('000001', ?, ?, ?, ?, 'A', ' ', '00:00:15', '0', 0, 0, 0)");
    for (int i = 1; i <= legs; ++i) {
        bindText(insert.get(), 1, digits("%04d", i));
        bindText(insert.get(), 2, digits("Luogo numero %05d", i));
        bindText(insert.get(), 3, digits("%d", 5 + i % 16));
        bindText(insert.get(), 4, digits("SS%d ", i % 300));
        if (sqlite3_step(insert.get()) != SQLITE_DONE)
            throw std::runtime_error(sqlite3_errmsg(connection_.get()));
        sqlite3_reset(insert.get());
    }
    run("COMMIT");
}

long BareArchive::readGuide(int places) {
    const Statement query = prepare(connection_.get(), "SELECT * FROM GuidaCitta WHERE Localita = ? "
                                                       "ORDER BY CodiceGuida, TempoSosta DESC, Gruppo");
    long bytes = 0;
    for (int i = 1; i <= places; ++i) {
        bindText(query.get(), 1, digits("Luogo numero %05d", i));
        const long found = walk(query.get());
        if (found == 0)
            throw std::runtime_error("a place without its entry");
        bytes += found;
    }
    return bytes;
}

std::vector<TableRows> BareArchive::readTrips() {
    std::vector<TableRows> tables;
    for (const char* name : {"MeteVanzer", "Itinerari", "GuidaCitta"}) {
        TableRows& table = tables.emplace_back(TableRows{name, {}});
        const Statement all = prepare(connection_.get(), ("SELECT * FROM " + table.table).c_str());
        const int columns = sqlite3_column_count(all.get());
        while (sqlite3_step(all.get()) == SQLITE_ROW) {
            auto& row = table.rows.emplace_back();
            for (int c = 0; c < columns; ++c) {
                const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(all.get(), c));
                row.push_back(text == nullptr ? std::nullopt : std::optional<std::string>(text));
            }
        }
    }
    return tables;
}

void BareArchive::insert(const std::vector<TableRows>& tables) {
    run("BEGIN");
    for (const TableRows& table : tables) {
        std::string sql = "INSERT INTO " + table.table + " VALUES (?";
        for (std::size_t c = 1; c < table.rows.front().size(); ++c)
            sql += ",?";
        const Statement statement = prepare(connection_.get(), (sql + ')').c_str());
        for (const auto& row : table.rows) {
            for (std::size_t c = 0; c < row.size(); ++c) {
                if (row[c])
                    bindText(statement.get(), static_cast<int>(c) + 1, *row[c]);
                else
                    sqlite3_bind_null(statement.get(), static_cast<int>(c) + 1);
            }
            if (sqlite3_step(statement.get()) != SQLITE_DONE)
                throw std::runtime_error(sqlite3_errmsg(connection_.get()));
            sqlite3_reset(statement.get());
        }
    }
    run("COMMIT");
}

} // namespace vanzer::bench
