// The calls on files that the program and its libraries make: they come through this binary, which counts them, lets
// one fail, kills the program at one, or keeps what they change; and the disk as it may look after a loss of power.
#pragma once

#include <array>
#include <filesystem>
#include <map>
#include <random>
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
    /// Nothing if there is no such file.
    [[nodiscard]] const std::string& operator[](const std::string& name) const;
};

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
    explicit Watch(const QString& watchedFolder) : folder(watchedFolder.toStdString()) { current = this; }
    ~Watch() { current = nullptr; }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    /// The n-th call from here on doesn't pass.
    void arm(const Fault& next, int n) {
        fault = next;
        countdown = n;
        hit = false;
    }
    void disarm() { countdown = 0; }
    void record(Recording& kept);

    const std::string folder; ///< without a separator at its end
    bool hit = false;
    std::array<int, kindsOfCalls> counts{};

    Fault fault;
    int countdown = 0; ///< calls to the fault; 0 when it is not armed
    Recording* recording = nullptr;
    std::map<ino_t, int> numbers; ///< of the files that are there, for the recording
    int lastNumber = 0;

    static inline constinit Watch* current = nullptr;
};

/// The disk behind the first `cut` changes. All that was synced is there. Of what was written to a file since its last
/// sync a part is there, drawn by chance, torn at sectors; of names made, changed and taken away since their folder's
/// last sync the first few are. `ignoreSyncs` is a disk that lies: it has synced nothing.
[[nodiscard]] Disk afterPowerCut(const Recording& recording, std::size_t cut, std::mt19937_64& chance,
                                 bool ignoreSyncs = false);
/// Nothing is lost.
[[nodiscard]] Disk afterAll(const Recording& recording);

} // namespace vanzer::stress
