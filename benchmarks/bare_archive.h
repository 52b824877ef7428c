// The same reads and writes as the window's, by bare engine calls on a copy of the archive.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QString>

struct sqlite3;

namespace vanzer::bench {

/// A table's records as texts.
struct TableRows {
    std::string table;
    std::vector<std::vector<std::optional<std::string>>> rows;
};

class BareArchive {
  public:
    explicit BareArchive(const QString& path);
    ~BareArchive();
    BareArchive(const BareArchive&) = delete;
    BareArchive& operator=(const BareArchive&) = delete;

    /// Reads all fields of the destination's legs in their order; the number of bytes seen.
    long readLegs();
    /// Deletes the legs and adds as many again, in one transaction that is safe on the disk.
    void rewriteLegs(int legs);
    /// One indexed query for each place of the trip.
    long readGuide(int places);
    /// The destinations, legs and guide, and the same put in, in one transaction that is safe on the disk.
    [[nodiscard]] std::vector<TableRows> readTrips();
    void insert(const std::vector<TableRows>& tables);

  private:
    void run(const char* sql);

    struct Closer {
        void operator()(sqlite3* connection) const;
    };
    std::unique_ptr<sqlite3, Closer> connection_;
};

} // namespace vanzer::bench
