// The calls on files that the program and its libraries make: they come through this binary, which counts them, lets
// one fail, kills the program at one, or keeps what they change.
#pragma once

#include <array>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <QString>

namespace vanzer::stress {

enum class Call : unsigned { Open, Create, Read, Write, Sync, Truncate, Rename, Unlink, MakeFolder };
inline constexpr std::size_t kindsOfCalls = 9;

constexpr unsigned operator+(Call call) {
    return 1U << static_cast<unsigned>(call);
}
/// The calls that change what is on the disk.
inline constexpr unsigned changes =
    +Call::Create | +Call::Write | +Call::Sync | +Call::Truncate | +Call::Rename | +Call::Unlink | +Call::MakeFolder;

/// What a folder holds. Names are relative to it.
struct Disk {
    std::map<std::string, int> names; ///< files by their numbers
    std::map<int, std::string> contents;
    std::map<int, std::filesystem::file_time_type> times; ///< an archive that was left in order is known by its own
    std::set<std::string> folders;

    [[nodiscard]] static Disk of(const QString& folder);
    /// Makes the folder anew. What lies in a folder that isn't there is lost.
    void lay(const QString& folder) const;
};

[[nodiscard]] std::string bytesOf(const QString& path);

/// One change, as far as it was done.
struct Change {
    Call call;
    int file; ///< its number, which no other file ever gets; 0 for a folder
    std::string name{}, to{};
    std::size_t at = 0; ///< of the bytes; the new size
    std::string bytes{};
};

struct Recording {
    Disk first; ///< before all changes
    std::vector<Change> changes;
};

/// One call that doesn't pass.
struct Fault {
    unsigned calls = 0; ///< the kinds that count, as a sum of +Call
    int error = 0;      ///< errno; 0 kills the program
    bool lasting = false;
    bool half = true; ///< a write is done by half before
    int signal = 0;   ///< comes instead, and the call passes
};

/// The calls on the files of a folder while it lives. There is one at a time.
class Watch {
  public:
    explicit Watch(const QString& folder);
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    /// The n-th call from here on doesn't pass.
    void arm(const Fault& fault, int n);
    void disarm();
    [[nodiscard]] bool hit() const;
    [[nodiscard]] static int count(Call call);
    void record(Recording& recording);
};

} // namespace vanzer::stress
