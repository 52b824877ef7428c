// SPDX-License-Identifier: MIT
#include "stress/system_calls.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <fstream>
#include <functional>
#include <sstream>

#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace vanzer::stress {

namespace {

namespace fs = std::filesystem;

ino_t inodeOf(const std::string& path) {
    struct stat found {};
    return ::lstat(path.c_str(), &found) == 0 ? found.st_ino : 0;
}

} // namespace

Disk Disk::of(const QString& folder) {
    Disk disk;
    const fs::path top = folder.toStdString();
    int number = 0;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(top)) {
        const std::string name = fs::relative(entry.path(), top);
        if (entry.is_directory()) {
            disk.folders.insert(name);
            continue;
        }
        std::ostringstream bytes;
        bytes << std::ifstream(entry.path(), std::ios::binary).rdbuf();
        disk.names[name] = ++number;
        disk.times[number] = entry.last_write_time();
        disk.contents[number] = bytes.str();
    }
    return disk;
}

void Disk::lay(const QString& folder) const {
    const fs::path top = folder.toStdString();
    fs::remove_all(top);
    fs::create_directories(top);
    for (const std::string& name : folders)
        fs::create_directories(top / name);
    for (const auto& [name, number] : names) {
        if (const auto found = contents.find(number); found != contents.end())
            std::ofstream(top / name, std::ios::binary) << found->second;
        if (const auto found = times.find(number); found != times.end())
            fs::last_write_time(top / name, found->second);
    }
}

const std::string& Disk::operator[](const std::string& name) const {
    static const std::string none;
    const auto found = names.find(name);
    return found == names.end() ? none : contents.at(found->second);
}

void Watch::record(Recording& kept) {
    kept = {Disk::of(QString::fromStdString(folder)), {}};
    for (const auto& [name, number] : kept.first.names) {
        numbers[inodeOf(folder + '/' + name)] = number;
        lastNumber = std::max(lastNumber, number);
    }
    recording = &kept;
}

namespace {

const char* const elsewhere = "/";

/// The name of a watched file or folder relative to the folder. Empty for the folder itself.
std::string watched(const std::string& path) {
    if (Watch::current == nullptr)
        return elsewhere;
    const std::string& folder = Watch::current->folder;
    if (!path.starts_with(folder) || (path.size() > folder.size() && path[folder.size()] != '/'))
        return elsewhere;
    return path.size() == folder.size() ? std::string() : path.substr(folder.size() + 1);
}

std::string watched(int file) {
    char path[4096];
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t size = Watch::current == nullptr ? 0 : ::readlink(link.c_str(), path, sizeof path);
    return size <= 0 ? elsewhere : watched(std::string(path, static_cast<std::size_t>(size)));
}

/// Whether this call must fail. `half` does the first half of it before.
bool stopped(Call call, const std::function<void()>& half = {}) {
    Watch& watch = *Watch::current;
    ++watch.counts[static_cast<std::size_t>(call)];
    if (watch.countdown == 0 || (watch.fault.calls & +call) == 0 || --watch.countdown > 0)
        return false;
    watch.hit = true;
    watch.countdown = watch.fault.lasting ? 1 : 0;
    if (watch.fault.signal != 0) {
        raise(watch.fault.signal);
        return false;
    }
    if (half && watch.fault.half)
        half();
    if (watch.fault.error == 0)
        raise(SIGKILL);
    errno = watch.fault.error;
    return true;
}

int numberOf(int file) {
    struct stat found {};
    return ::fstat(file, &found) == 0 && S_ISREG(found.st_mode) ? Watch::current->numbers[found.st_ino] : 0;
}

/// Records the change and returns the result. A failed call has changed nothing.
template<typename Result> Result keep(Result result, Change change) {
    if (result >= 0 && Watch::current->recording != nullptr)
        Watch::current->recording->changes.push_back(std::move(change));
    return result;
}

int opens(int folder, const char* path, int flags, va_list rest) {
    const bool unnamed = (flags & O_TMPFILE) == O_TMPFILE;
    const mode_t mode = (flags & O_CREAT) != 0 || unnamed ? va_arg(rest, mode_t) : 0;
    const std::string name = watched(path);
    const bool creates = unnamed || ((flags & O_CREAT) != 0 && inodeOf(path) == 0);
    const bool changes = creates || (flags & O_TRUNC) != 0;
    if (name != elsewhere && stopped(changes ? Call::Create : Call::Open))
        return -1;
    const int file = static_cast<int>(syscall(SYS_openat, folder, path, flags, mode));
    if (name == elsewhere || file < 0 || !changes || Watch::current->recording == nullptr)
        return file;
    if (!creates)
        return keep(file, {Call::Truncate, numberOf(file)});
    struct stat made {};
    ::fstat(file, &made);
    Watch::current->numbers[made.st_ino] = ++Watch::current->lastNumber;
    return keep(file, {Call::Create, Watch::current->lastNumber, unnamed ? std::string() : name});
}

constexpr off_t behindTheLast = -1;
using Done = std::function<ssize_t(std::size_t count)>;

ssize_t writes(int file, const void* bytes, std::size_t count, off_t at, const Done& write) {
    if (watched(file) == elsewhere)
        return write(count);
    const off_t place = at == behindTheLast ? lseek(file, 0, SEEK_CUR) : at;
    if (stopped(Call::Write, [&write, count] { static_cast<void>(write(count / 2)); }))
        return -1;
    const ssize_t done = write(count);
    const std::string kept(static_cast<const char*>(bytes), static_cast<std::size_t>(std::max<ssize_t>(done, 0)));
    return keep(done, {Call::Write, numberOf(file), {}, {}, static_cast<std::size_t>(place), kept});
}

/// Makes a change of names. `to` is null if the call has only one name.
int names(Call call, const char* path, const char* to, const std::function<long()>& change) {
    const std::string name = watched(path);
    const std::string newName = to == nullptr ? std::string() : watched(to);
    const bool isWatched = name != elsewhere || (to != nullptr && newName != elsewhere);
    if (isWatched && (call != Call::Unlink || inodeOf(path) != 0) && stopped(call))
        return -1;
    const int result = static_cast<int>(change());
    return isWatched ? keep(result, {call, 0, name, newName}) : result;
}

} // namespace

} // namespace vanzer::stress

// The C library's names. The libraries find these functions before those of the C library.
namespace stress = vanzer::stress;
using stress::Call;

extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const int file = stress::opens(AT_FDCWD, path, flags, rest);
    va_end(rest);
    return file;
}

int openat(int folder, const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const int file = stress::opens(folder, path, flags, rest);
    va_end(rest);
    return file;
}

ssize_t write(int file, const void* bytes, size_t count) {
    return stress::writes(file, bytes, count, stress::behindTheLast,
                          [&](size_t size) { return syscall(SYS_write, file, bytes, size); });
}

ssize_t pwrite(int file, const void* bytes, size_t count, off_t at) {
    return stress::writes(file, bytes, count, at,
                          [&](size_t size) { return syscall(SYS_pwrite64, file, bytes, size, at); });
}

// A copy is done piece by piece.
ssize_t sendfile(int to, int from, off_t* at, size_t count) noexcept {
    char bytes[4096];
    size_t all = 0;
    while (all < count) {
        const size_t piece = std::min(count - all, sizeof bytes);
        const ssize_t size = at == nullptr ? read(from, bytes, piece) : pread(from, bytes, piece, *at);
        const ssize_t done = size <= 0 ? size : write(to, bytes, static_cast<size_t>(size));
        if (done <= 0)
            return all == 0 ? done : static_cast<ssize_t>(all);
        all += static_cast<size_t>(done);
        if (at != nullptr)
            *at += done;
    }
    return static_cast<ssize_t>(all);
}

ssize_t copy_file_range(int /*from*/, off_t* /*at*/, int /*to*/, off_t* /*toAt*/, size_t /*count*/,
                        unsigned /*flags*/) {
    errno = ENOSYS;
    return -1;
}

ssize_t read(int file, void* bytes, size_t count) {
    const bool fails = stress::watched(file) != stress::elsewhere && stress::stopped(Call::Read);
    return fails ? -1 : syscall(SYS_read, file, bytes, count);
}

ssize_t pread(int file, void* bytes, size_t count, off_t at) {
    const bool fails = stress::watched(file) != stress::elsewhere && stress::stopped(Call::Read);
    return fails ? -1 : syscall(SYS_pread64, file, bytes, count, at);
}

// Nothing is really synced, as nothing here has to survive a crash of the machine.
int fsync(int file) {
    const std::string name = stress::watched(file);
    if (name == stress::elsewhere)
        return static_cast<int>(syscall(SYS_fsync, file));
    return stress::stopped(Call::Sync) ? -1 : stress::keep(0, {Call::Sync, stress::numberOf(file), name});
}

int ftruncate(int file, off_t size) noexcept {
    const bool isWatched = stress::watched(file) != stress::elsewhere;
    if (isWatched && stress::stopped(Call::Truncate))
        return -1;
    const int result = static_cast<int>(syscall(SYS_ftruncate, file, size));
    const auto length = static_cast<std::size_t>(size);
    return isWatched ? stress::keep(result, {Call::Truncate, stress::numberOf(file), {}, {}, length}) : result;
}

int renameat2(int folder, const char* from, int folderTo, const char* to, unsigned flags) noexcept {
    return stress::names(Call::Rename, from, to,
                         [&] { return syscall(SYS_renameat2, folder, from, folderTo, to, flags); });
}

int rename(const char* from, const char* to) noexcept {
    return renameat2(AT_FDCWD, from, AT_FDCWD, to, 0);
}

// Gives a file another name.
int linkat(int folder, const char* from, int folderTo, const char* to, int flags) noexcept {
    const std::string name = stress::watched(to);
    if (name != stress::elsewhere && stress::stopped(Call::Rename))
        return -1;
    const int result = static_cast<int>(syscall(SYS_linkat, folder, from, folderTo, to, flags));
    if (result != 0 || name == stress::elsewhere || stress::Watch::current->recording == nullptr)
        return result;
    return stress::keep(result, {Call::Create, stress::Watch::current->numbers[stress::inodeOf(to)], name});
}

int unlink(const char* path) noexcept {
    return stress::names(Call::Unlink, path, nullptr, [path] { return syscall(SYS_unlinkat, AT_FDCWD, path, 0); });
}

int rmdir(const char* path) noexcept {
    return stress::names(Call::Unlink, path, nullptr,
                         [path] { return syscall(SYS_unlinkat, AT_FDCWD, path, AT_REMOVEDIR); });
}

int mkdir(const char* path, mode_t mode) noexcept {
    return stress::names(Call::MakeFolder, path, nullptr,
                         [path, mode] { return syscall(SYS_mkdirat, AT_FDCWD, path, mode); });
}

// File sizes have 64 bits with either name.
int open64(const char* path, int flags, ...) __attribute__((alias("open")));
ssize_t pwrite64(int file, const void* bytes, size_t count, off64_t at) __attribute__((alias("pwrite")));
ssize_t pread64(int file, void* bytes, size_t count, off64_t at) __attribute__((alias("pread")));
int ftruncate64(int file, off64_t size) noexcept __attribute__((alias("ftruncate")));
ssize_t sendfile64(int to, int from, off64_t* at, size_t count) noexcept __attribute__((alias("sendfile")));
int fdatasync(int file) __attribute__((alias("fsync")));

} // extern "C"
