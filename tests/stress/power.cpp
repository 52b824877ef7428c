// SPDX-License-Identifier: MIT
#include "stress/system_calls.h"

#include <algorithm>
#include <cstdint>
#include <functional>

namespace vanzer::stress {

namespace {

constexpr std::size_t sector = 512; // bytes that are written all or not at all

/// For each file or folder, the number of changes that its last sync made safe.
using Synced = std::map<std::string, std::size_t>;

std::string keyOf(int file, const std::string& folder) {
    return file != 0 ? std::to_string(file) : '/' + folder;
}

/// Writes those pieces of a write for which `kept` returns true.
void doWrite(std::string& contents, const Change& change, std::size_t piece, const std::function<bool()>& kept) {
    for (std::size_t done = 0; done < change.bytes.size();) {
        const std::size_t at = change.at + done;
        const std::size_t size = std::min(piece - at % piece, change.bytes.size() - done);
        if (kept()) {
            contents.resize(std::max(contents.size(), at + size));
            contents.replace(at, size, change.bytes, done, size);
        }
        done += size;
    }
}

void changeNames(Disk& disk, const Change& change) {
    if (change.call == Call::Create)
        disk.names[change.name] = change.file;
    if (change.call == Call::MakeFolder)
        disk.folders.insert(change.name);
    if (change.call == Call::Rename && disk.names.contains(change.name))
        disk.names[change.to] = disk.names[change.name];
    if (change.call == Call::Rename || change.call == Call::Unlink)
        disk.names.erase(change.name);
    if (change.call == Call::Unlink)
        disk.folders.erase(change.name);
}

/// Which changes since the last sync are lost.
struct Losses {
    enum class Of { Nothing, All, FromOneOn, Some, SomeSectors } of = Of::Nothing;
    std::size_t from = 0;         ///< FromOneOn: the first change that is lost
    std::size_t names = SIZE_MAX; ///< the first change of names that is lost
    std::function<bool()> kept;   ///< Some: draws whether a change is kept
};

Disk after(const Recording& recording, std::size_t cut, const Synced& synced, const Losses& losses) {
    using Of = Losses::Of;
    const auto safe = [&synced](const std::string& key, std::size_t i) {
        return synced.contains(key) && i < synced.at(key);
    };
    Disk disk = recording.first;
    for (std::size_t i = 0; i < cut; ++i) {
        const Change& change = recording.changes[i];
        std::string& contents = disk.contents[change.file];
        if (change.call == Call::Write || change.call == Call::Truncate)
            disk.times.erase(change.file);
        const bool whole = safe(keyOf(change.file, {}), i) || losses.of == Of::Nothing ||
                           (losses.of == Of::FromOneOn && i < losses.from) || (losses.of == Of::Some && losses.kept());
        const bool torn = !whole && losses.of == Of::SomeSectors;
        if (change.call == Call::Write && (whole || torn))
            doWrite(contents, change, whole ? SIZE_MAX : sector, [&] { return whole || losses.kept(); });
        else if (change.call == Call::Truncate && (whole || (torn && losses.kept())))
            contents.resize(change.at);
        else if (!change.name.empty() &&
                 (i < losses.names || safe(keyOf(0, std::filesystem::path(change.name).parent_path()), i)))
            changeNames(disk, change);
    }
    return disk;
}

} // namespace

Disk afterPowerCut(const Recording& recording, std::size_t cut, std::mt19937_64& chance, bool ignoreSyncs) {
    const std::size_t names[] = {0, cut, chance() % (cut + 1)};
    const Losses losses{.of = static_cast<Losses::Of>(chance() % 5),
                        .from = chance() % (cut + 1),
                        .names = names[chance() % 3],
                        .kept = [&chance] { return chance() % 2 == 0; }};
    Synced synced;
    for (std::size_t i = 0; i < cut && !ignoreSyncs; ++i) {
        const Change& change = recording.changes[i];
        if (change.call == Call::Sync)
            synced[keyOf(change.file, change.name)] = i;
    }
    return after(recording, cut, synced, losses);
}

Disk afterAll(const Recording& recording) {
    return after(recording, recording.changes.size(), Synced(), Losses());
}

} // namespace vanzer::stress
