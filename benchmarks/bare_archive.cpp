// SPDX-License-Identifier: MIT
#include "bare_archive.h"

#include <stdexcept>
#include <string>

#include <sqlite3.h>

#include "core/collation.h"
#include "core/place_name.h"

namespace vanzer::bench {

namespace {

int collate(void*, int aLength, const void* a, int bLength, const void* b) {
    return compare({static_cast<const char*>(a), static_cast<std::size_t>(aLength)},
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

/// Steps through the rows of a query and reads every value.
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

BareRows rowsOf(sqlite3_stmt* statement) {
    BareRows rows;
    const int columns = sqlite3_column_count(statement);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        auto& row = rows.emplace_back();
        for (int c = 0; c < columns; ++c) {
            const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(statement, c));
            row.push_back(text == nullptr ? std::nullopt : std::optional<std::string>(text));
        }
    }
    return rows;
}

void bindText(sqlite3_stmt* statement, int parameter, const std::string& text) {
    sqlite3_bind_text(statement, parameter, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

constexpr const char* legsOf = "SELECT * FROM Itinerari WHERE CodiceMeta = ? ORDER BY Sequenza";

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

std::string BareArchive::currentCode() {
    return rowsOf(prepare(connection_.get(), "SELECT MetaCorrente FROM MetaCorrente").get()).at(0).at(0).value();
}

long BareArchive::readDestination(const std::string& code) {
    const Statement record = prepare(connection_.get(), "SELECT * FROM MeteVanzer WHERE CodiceMeta = ?");
    bindText(record.get(), 1, code);
    return walk(record.get());
}

BareRows BareArchive::legs(const std::string& code) {
    const Statement all = prepare(connection_.get(), legsOf);
    bindText(all.get(), 1, code);
    return rowsOf(all.get());
}

long BareArchive::readLegs(const std::string& code) {
    const Statement all = prepare(connection_.get(), legsOf);
    bindText(all.get(), 1, code);
    return walk(all.get());
}

void BareArchive::rewriteLegs(const std::string& code, const BareRows& legs) {
    run("BEGIN");
    run(("DELETE FROM Itinerari WHERE CodiceMeta = '" + code + '\'').c_str());
    insertInto("Itinerari", legs);
    run("COMMIT");
}

long BareArchive::readGuide(const std::vector<QString>& places) {
    const Statement query = prepare(connection_.get(), "SELECT * FROM GuidaCitta WHERE Localita = ? "
                                                       "ORDER BY CodiceGuida, TempoSosta DESC, Gruppo");
    long bytes = 0;
    for (const QString& place : places) {
        bindText(query.get(), 1, place.toStdString());
        bytes += walk(query.get());
    }
    return bytes;
}

std::vector<BareTable> BareArchive::readTrips() {
    std::vector<BareTable> tables;
    for (const char* name : {"MeteVanzer", "Itinerari", "GuidaCitta"})
        tables.push_back(
            {name, rowsOf(prepare(connection_.get(), ("SELECT * FROM " + std::string(name)).c_str()).get())});
    return tables;
}

void BareArchive::insert(const std::vector<BareTable>& tables) {
    run("BEGIN");
    for (const BareTable& table : tables)
        insertInto(table.name, table.rows);
    run("COMMIT");
}

void BareArchive::insertInto(const std::string& table, const BareRows& rows) {
    std::string sql = "INSERT INTO " + table + " VALUES (?";
    for (std::size_t c = 1; c < rows.front().size(); ++c)
        sql += ",?";
    const Statement statement = prepare(connection_.get(), (sql + ')').c_str());
    for (const auto& row : rows) {
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

void readCurrentTrip(const QString& folder) {
    constexpr std::size_t placeColumn = 2;
    BareArchive archive(folder + QStringLiteral("/Vanzer.mdb"));
    const std::string code = archive.currentCode();
    archive.readDestination(code);
    std::vector<QString> places;
    for (const auto& leg : archive.legs(code))
        places.push_back(PulisceNomeLocalita(QString::fromStdString(leg[placeColumn].value_or(std::string()))));
    archive.readGuide(places);
}

} // namespace vanzer::bench
