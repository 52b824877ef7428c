// A disk under the archive that fails when it is told to.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

struct sqlite3_vfs;

namespace vanzer::faults {

enum class Operation : std::size_t { Read, Write, Sync, Truncate, Open, Delete };

/// The disk on which the engine works while this lives. It counts from `arm` to `disarm`. Nothing is really synced.
class FaultyDisk {
  public:
    /// The n-th operation of that kind answers `result`, a code of the engine; with `lasting` all behind it too. A
    /// failing write leaves half of its sectors.
    struct Fault {
        Operation operation;
        int result;
        bool lasting = false;
    };

    FaultyDisk();
    ~FaultyDisk();
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;

    void arm(const Fault& fault, int n);
    void disarm();
    /// Whether the fault came since it was armed.
    [[nodiscard]] bool hit() const { return hit_; }

    /// Gives each kind of fault to `attempt`, at its first operation, its second and so on, until it does without. It
    /// arms and disarms the disk itself and returns whether the user was told. Stops at the first failure of a test.
    void withEachFault(const std::string& what, const std::function<bool(const Fault& fault, int n)>& attempt);

    /// The engine's word on an operation that begins: its own result, or the fault's.
    [[nodiscard]] int judge(Operation operation);

  private:
    std::unique_ptr<sqlite3_vfs> face_;
    Fault fault_{Operation::Read, 0};
    int countdown_ = 0; ///< operations to the fault
    bool hit_ = false;
    bool armed_ = false;
};

} // namespace vanzer::faults
