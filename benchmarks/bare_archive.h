// SPDX-License-Identifier: MIT
// The reads and writes of the window, done by plain calls of the database engine on a copy of the archive.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QString>

struct sqlite3;

namespace vanzer::bench {

/// Records, each as the texts of its fields.
using BareRows = std::vector<std::vector<std::optional<std::string>>>;

struct BareTable {
    std::string name;
    BareRows rows;
};

class BareArchive {
  public:
    explicit BareArchive(const QString& path);
    ~BareArchive();
    BareArchive(const BareArchive&) = delete;
    BareArchive& operator=(const BareArchive&) = delete;

    /// The code of the current destination. readDestination() reads a destination's record, legs() its legs in order.
    [[nodiscard]] std::string currentCode();
    long readDestination(const std::string& code);
    [[nodiscard]] BareRows legs(const std::string& code);
    /// Reads every value of the legs. Returns the number of bytes read.
    long readLegs(const std::string& code);
    /// Deletes the legs and adds them again, in one transaction that is synced to the disk.
    void rewriteLegs(const std::string& code, const BareRows& legs);
    /// One indexed query for each place.
    long readGuide(const std::vector<QString>& places);
    /// Reads destinations, legs and guide. insert() adds them again, in one transaction that is synced to the disk.
    [[nodiscard]] std::vector<BareTable> readTrips();
    void insert(const std::vector<BareTable>& tables);

  private:
    void run(const char* sql);
    void insertInto(const std::string& table, const BareRows& rows);

    struct Closer {
        void operator()(sqlite3* connection) const;
    };
    std::unique_ptr<sqlite3, Closer> connection_;
};

/// Reads what the program reads of its current trip at a start: the destination, its legs, and their guide entries.
void readCurrentTrip(const QString& folder);

} // namespace vanzer::bench
