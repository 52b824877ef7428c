#include "stress/system_calls.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <fstream>
#include <functional>
#include <sstream>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>

namespace vanzer::stress {

namespace {

namespace fs = std::filesystem;

/// All of it is there from the first call on, which comes before anything is constructed.
struct State {
    const std::string* folder = nullptr; ///< watched, without a separator at its end
    Fault fault;
    int countdown = 0; ///< calls to the fault; 0 when it is not armed
    bool hit = false;
    std::array<int, kindsOfCalls> counts{};
    Recording* recording = nullptr;
    std::map<ino_t, int>* numbers = nullptr; ///< of the files that are there
    int lastNumber = 0;
};
constinit State state;

ino_t inodeOf(const std::string& path) {
    struct stat found {};
    return ::lstat(path.c_str(), &found) == 0 ? found.st_ino : 0;
}

} // namespace

std::string bytesOf(const QString& path) {
    std::ostringstream bytes;
    bytes << std::ifstream(path.toStdString(), std::ios::binary).rdbuf();
    return bytes.str();
}

Disk Disk::of(const QString& folder) {
    Disk disk;
    const fs::path top = folder.toStdString();
    int number = 0;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(top)) {
        const std::string name = fs::relative(entry.path(), top);
        if (entry.is_directory()) {
            disk.folders.insert(name);
        } else {
            disk.names[name] = ++number;
            disk.times[number] = entry.last_write_time();
            disk.contents[number] = bytesOf(QString::fromStdString(entry.path()));
        }
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

Watch::Watch(const QString& folder) {
    static std::string name;
    name = folder.toStdString();
    state = State{.folder = &name, .fault = {}};
}

Watch::~Watch() {
    delete state.numbers;
    state = State();
}

void Watch::arm(const Fault& fault, int n) {
    state.fault = fault;
    state.countdown = n;
    state.hit = false;
}

void Watch::disarm() {
    state.countdown = 0;
}

bool Watch::hit() const {
    return state.hit;
}

int Watch::count(Call call) {
    return state.counts[static_cast<std::size_t>(call)];
}

void Watch::record(Recording& recording) {
    recording = {Disk::of(QString::fromStdString(*state.folder)), {}};
    state.numbers = new std::map<ino_t, int>;
    for (const auto& [name, number] : recording.first.names) {
        (*state.numbers)[inodeOf(*state.folder + '/' + name)] = number;
        state.lastNumber = std::max(state.lastNumber, number);
    }
    state.recording = &recording;
}

namespace {

template<typename Function> Function* next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// The name of a watched file or folder; empty for the folder itself, "/" for any other.
std::string watched(const std::string& path) {
    if (!path.starts_with(*state.folder) || (path.size() > state.folder->size() && path[state.folder->size()] != '/'))
        return "/";
    return path.size() == state.folder->size() ? std::string() : path.substr(state.folder->size() + 1);
}

std::string watched(int file) {
    char path[4096];
    const ssize_t size = ::readlink(("/proc/self/fd/" + std::to_string(file)).c_str(), path, sizeof path);
    return size <= 0 ? "/" : watched(std::string(path, static_cast<std::size_t>(size)));
}

/// True if this is the call that doesn't pass. `half` does what is done of it all the same.
bool stopped(Call call, const std::function<void()>& half = {}) {
    ++state.counts[static_cast<std::size_t>(call)];
    if (state.countdown == 0 || (state.fault.calls & +call) == 0 || --state.countdown > 0)
        return false;
    state.hit = true;
    state.countdown = state.fault.lasting ? 1 : 0;
    if (state.fault.signal != 0) {
        raise(state.fault.signal);
        return false;
    }
    if (half && state.fault.half)
        half();
    if (state.fault.error == 0)
        raise(SIGKILL);
    errno = state.fault.error;
    return true;
}

int numberOf(int file) {
    struct stat found {};
    return ::fstat(file, &found) == 0 && S_ISREG(found.st_mode) ? (*state.numbers)[found.st_ino] : 0;
}

void keep(Change change) {
    if (state.recording != nullptr)
        state.recording->changes.push_back(std::move(change));
}

/// The right of a file that may be made, which stands behind the flags.
mode_t modeOf(int flags, va_list rest) {
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE ? va_arg(rest, mode_t) : 0;
}

using Opener = std::function<int()>;

int opens(const char* path, int flags, const Opener& open) {
    if (state.folder == nullptr)
        return open();
    const std::string name = watched(path);
    if (name == "/")
        return open();
    const bool unnamed = (flags & O_TMPFILE) == O_TMPFILE;
    const bool creates = unnamed || ((flags & O_CREAT) != 0 && inodeOf(path) == 0);
    if (stopped(creates || (flags & O_TRUNC) != 0 ? Call::Create : Call::Open))
        return -1;
    const int file = open();
    if (file < 0 || state.recording == nullptr)
        return file;
    if (creates) {
        struct stat made {};
        ::fstat(file, &made);
        (*state.numbers)[made.st_ino] = ++state.lastNumber;
        keep({Call::Create, state.lastNumber, unnamed ? std::string() : name, {}});
    } else if ((flags & O_TRUNC) != 0)
        keep({Call::Truncate, numberOf(file), {}, {}});
    return file;
}

ssize_t writes(int file, const void* bytes, std::size_t count, off_t at,
               const std::function<ssize_t(std::size_t)>& write) {
    if (state.folder == nullptr)
        return write(count);
    const std::string name = watched(file);
    if (name == "/")
        return write(count);
    const auto half = [&write, count] { static_cast<void>(write(count / 2)); };
    if (stopped(Call::Write, half))
        return -1;
    const ssize_t done = write(count);
    if (done > 0 && state.recording != nullptr)
        keep({Call::Write,
              numberOf(file),
              {},
              {},
              static_cast<std::size_t>(at),
              std::string(static_cast<const char*>(bytes), static_cast<std::size_t>(done))});
    return done;
}

ssize_t reads(int file, const std::function<ssize_t()>& read) {
    return state.folder != nullptr && watched(file) != "/" && stopped(Call::Read) ? -1 : read();
}

/// Nothing needs to outlive the machine here, so nothing is really synced.
int syncs(int file, const std::function<int()>& sync) {
    if (state.folder == nullptr)
        return sync();
    const std::string name = watched(file);
    if (name == "/")
        return sync();
    if (stopped(Call::Sync))
        return -1;
    if (state.recording != nullptr)
        keep({Call::Sync, numberOf(file), name, {}});
    return 0;
}

int truncates(int file, off_t size, const std::function<int()>& truncate) {
    if (state.folder == nullptr || watched(file) == "/")
        return truncate();
    if (stopped(Call::Truncate))
        return -1;
    const int result = truncate();
    if (result == 0 && state.recording != nullptr)
        keep({Call::Truncate, numberOf(file), {}, {}, static_cast<std::size_t>(size)});
    return result;
}

/// A change of names; `to` is null where there is one alone.
int names(Call call, const char* path, const char* to, const std::function<int()>& change) {
    if (state.folder == nullptr)
        return change();
    const std::string name = watched(path);
    const std::string newName = to == nullptr ? std::string() : watched(to);
    if (name == "/" && (to == nullptr || newName == "/"))
        return change();
    if (call == Call::Unlink && inodeOf(path) == 0)
        return change();
    if (stopped(call))
        return -1;
    const int result = change();
    if (result == 0)
        keep({call, 0, name, newName});
    return result;
}

/// A file gets a name more.
int links(const char* to, const std::function<int()>& link) {
    if (state.folder == nullptr || watched(to) == "/")
        return link();
    if (stopped(Call::Rename))
        return -1;
    const int result = link();
    if (result == 0 && state.recording != nullptr)
        keep({Call::Create, (*state.numbers)[inodeOf(to)], watched(to), {}});
    return result;
}

} // namespace

} // namespace vanzer::stress

// The names are the system's: the libraries find these before those of the C library.
namespace stress = vanzer::stress;
using stress::Call;

extern "C" {

int open(const char* path, int flags, ...) {
    static auto* const real = stress::next<decltype(open)>("open");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = stress::modeOf(flags, rest);
    va_end(rest);
    return stress::opens(path, flags, [&] { return real(path, flags, mode); });
}

int open64(const char* path, int flags, ...) {
    static auto* const real = stress::next<decltype(open)>("open64");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = stress::modeOf(flags, rest);
    va_end(rest);
    return stress::opens(path, flags, [&] { return real(path, flags, mode); });
}

int openat(int folder, const char* path, int flags, ...) {
    static auto* const real = stress::next<decltype(openat)>("openat");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = stress::modeOf(flags, rest);
    va_end(rest);
    return stress::opens(path, flags, [&] { return real(folder, path, flags, mode); });
}

ssize_t write(int file, const void* bytes, size_t count) {
    static auto* const real = stress::next<decltype(write)>("write");
    return stress::writes(file, bytes, count, stress::state.folder == nullptr ? 0 : lseek(file, 0, SEEK_CUR),
                          [&](size_t size) { return real(file, bytes, size); });
}

ssize_t pwrite(int file, const void* bytes, size_t count, off_t at) {
    static auto* const real = stress::next<decltype(pwrite)>("pwrite");
    return stress::writes(file, bytes, count, at, [&](size_t size) { return real(file, bytes, size, at); });
}

ssize_t pwrite64(int file, const void* bytes, size_t count, off_t at) {
    return pwrite(file, bytes, count, at);
}

// A copy goes piece by piece.
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

ssize_t sendfile64(int to, int from, off_t* at, size_t count) noexcept {
    return sendfile(to, from, at, count);
}

ssize_t copy_file_range(int /*from*/, off_t* /*at*/, int /*to*/, off_t* /*toAt*/, size_t /*count*/,
                        unsigned /*flags*/) {
    errno = ENOSYS;
    return -1;
}

ssize_t read(int file, void* bytes, size_t count) {
    static auto* const real = stress::next<decltype(read)>("read");
    return stress::reads(file, [&] { return real(file, bytes, count); });
}

ssize_t pread(int file, void* bytes, size_t count, off_t at) {
    static auto* const real = stress::next<decltype(pread)>("pread");
    return stress::reads(file, [&] { return real(file, bytes, count, at); });
}

ssize_t pread64(int file, void* bytes, size_t count, off_t at) {
    return pread(file, bytes, count, at);
}

int fsync(int file) {
    static auto* const real = stress::next<decltype(fsync)>("fsync");
    return stress::syncs(file, [&] { return real(file); });
}

int fdatasync(int file) {
    static auto* const real = stress::next<decltype(fdatasync)>("fdatasync");
    return stress::syncs(file, [&] { return real(file); });
}

int ftruncate(int file, off_t size) noexcept {
    static auto* const real = stress::next<decltype(ftruncate)>("ftruncate");
    return stress::truncates(file, size, [&] { return real(file, size); });
}

int ftruncate64(int file, off_t size) noexcept {
    return ftruncate(file, size);
}

int rename(const char* from, const char* to) noexcept {
    static auto* const real = stress::next<decltype(rename)>("rename");
    return stress::names(Call::Rename, from, to, [&] { return real(from, to); });
}

int renameat2(int folder, const char* from, int folderTo, const char* to, unsigned flags) noexcept {
    static auto* const real = stress::next<decltype(renameat2)>("renameat2");
    return stress::names(Call::Rename, from, to, [&] { return real(folder, from, folderTo, to, flags); });
}

int link(const char* from, const char* to) noexcept {
    static auto* const real = stress::next<decltype(link)>("link");
    return stress::links(to, [&] { return real(from, to); });
}

int linkat(int folder, const char* from, int folderTo, const char* to, int flags) noexcept {
    static auto* const real = stress::next<decltype(linkat)>("linkat");
    return stress::links(to, [&] { return real(folder, from, folderTo, to, flags); });
}

int unlink(const char* path) noexcept {
    static auto* const real = stress::next<decltype(unlink)>("unlink");
    return stress::names(Call::Unlink, path, nullptr, [&] { return real(path); });
}

int rmdir(const char* path) noexcept {
    static auto* const real = stress::next<decltype(rmdir)>("rmdir");
    return stress::names(Call::Unlink, path, nullptr, [&] { return real(path); });
}

int mkdir(const char* path, mode_t mode) noexcept {
    static auto* const real = stress::next<decltype(mkdir)>("mkdir");
    return stress::names(Call::MakeFolder, path, nullptr, [&] { return real(path, mode); });
}

} // extern "C"
