// SPDX-License-Identifier: MIT
// Stands between the program with its libraries and the system's calls on files. It counts the calls, lets one fail,
// kills the program at one, or records the changes. Also gives the disk as it may look after a loss of power.
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
/// The calls that change the disk.
inline constexpr unsigned changes =
    +Call::Create | +Call::Write | +Call::Sync | +Call::Truncate | +Call::Rename | +Call::Unlink | +Call::MakeFolder;

/// The contents of a folder. Names are relative to it.
struct Disk {
    std::map<std::string, int> names; ///< files by their numbers
    std::map<int, std::string> contents;
    std::map<int, std::filesystem::file_time_type> times; ///< an archive that was closed properly is known by its time
    std::set<std::string> folders;

    [[nodiscard]] static Disk of(const QString& folder);
    /// Makes the folder anew with these contents. Files in a subfolder that doesn't exist are lost.
    void lay(const QString& folder) const;
    /// The contents of a file. Empty if it doesn't exist.
    [[nodiscard]] const std::string& operator[](const std::string& name) const;
};

/// One change, as far as it was done.
struct Change {
    Call call;
    int file; ///< the file's number, which is never used again; 0 for a folder
    std::string name{}, to{};
    std::size_t at = 0; ///< position of the bytes, or the new size
    std::string bytes{};
};

struct Recording {
    Disk first; ///< the disk before all changes
    std::vector<Change> changes;
};

/// A fault at one call.
struct Fault {
    unsigned calls = 0; ///< kinds of calls that count, as a sum of +Call
    int error = 0;      ///< errno; 0 kills the program
    bool lasting = false;
    bool half = true; ///< does half of a write before it fails
    int signal = 0;   ///< sends this signal instead; the call succeeds
};

/// Watches the calls on the files of a folder during its lifetime. Only one may exist at a time.
class Watch {
  public:
    explicit Watch(const QString& watchedFolder) : folder(watchedFolder.toStdString()) { current = this; }
    ~Watch() { current = nullptr; }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    /// Sets the fault for the n-th call from here on.
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
    int countdown = 0; ///< calls until the fault; 0 if none is set
    Recording* recording = nullptr;
    std::map<ino_t, int> numbers; ///< numbers of existing files, for the recording
    int lastNumber = 0;

    static inline constinit Watch* current = nullptr;
};

/// The disk after the first `cut` changes and a loss of power. All synced changes are there. Of later writes to a file
/// a random part is there, torn at sector bounds. Of later changes of names the first few are there. `ignoreSyncs` is a
/// disk that has synced nothing.
[[nodiscard]] Disk afterPowerCut(const Recording& recording, std::size_t cut, std::mt19937_64& chance,
                                 bool ignoreSyncs = false);
/// The disk if nothing is lost.
[[nodiscard]] Disk afterAll(const Recording& recording);

} // namespace vanzer::stress
