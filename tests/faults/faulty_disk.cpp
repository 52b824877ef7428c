#include "faults/faulty_disk.h"

#include <cstdio>

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace vanzer::faults {

namespace {

constexpr int sector = 512; // bytes, which are written all or not at all

FaultyDisk* theDisk = nullptr;
sqlite3_vfs* theRealDisk = nullptr;

/// A file of the engine; the real one lies behind it in the same piece of memory.
struct File {
    sqlite3_file face;

    sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

sqlite3_file* real(sqlite3_file* file) {
    return reinterpret_cast<File*>(file)->real();
}

/// What the real file does, unasked.
template<auto Method, typename... Arguments> int really(sqlite3_file* file, Arguments... arguments) {
    return (real(file)->pMethods->*Method)(real(file), arguments...);
}

int readFile(sqlite3_file* file, void* bytes, int count, sqlite3_int64 at) {
    const int result = theDisk->judge(Operation::Read);
    return result != SQLITE_OK ? result : really<&sqlite3_io_methods::xRead>(file, bytes, count, at);
}

int writeFile(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 at) {
    const int result = theDisk->judge(Operation::Write);
    const int written = result == SQLITE_OK ? count : count / 2 / sector * sector;
    const int done = really<&sqlite3_io_methods::xWrite>(file, bytes, written, at);
    return result != SQLITE_OK ? result : done;
}

int truncateFile(sqlite3_file* file, sqlite3_int64 size) {
    const int result = theDisk->judge(Operation::Truncate);
    return result != SQLITE_OK ? result : really<&sqlite3_io_methods::xTruncate>(file, size);
}

int syncFile(sqlite3_file* /*file*/, int /*flags*/) {
    return theDisk->judge(Operation::Sync);
}

constexpr sqlite3_io_methods methods = [] {
    using Io = sqlite3_io_methods;
    Io all{};
    all.iVersion = 1;
    all.xClose = really<&Io::xClose>;
    all.xRead = readFile;
    all.xWrite = writeFile;
    all.xTruncate = truncateFile;
    all.xSync = syncFile;
    all.xFileSize = really<&Io::xFileSize, sqlite3_int64*>;
    all.xLock = really<&Io::xLock, int>;
    all.xUnlock = really<&Io::xUnlock, int>;
    all.xCheckReservedLock = really<&Io::xCheckReservedLock, int*>;
    all.xFileControl = really<&Io::xFileControl, int, void*>;
    all.xSectorSize = really<&Io::xSectorSize>;
    all.xDeviceCharacteristics = really<&Io::xDeviceCharacteristics>;
    return all;
}();

int openFile(sqlite3_vfs* /*disk*/, const char* name, sqlite3_file* file, int flags, int* opened) {
    file->pMethods = nullptr;
    int result = theDisk->judge(Operation::Open);
    if (result == SQLITE_OK)
        result = theRealDisk->xOpen(theRealDisk, name, real(file), flags, opened);
    if (result == SQLITE_OK)
        file->pMethods = &methods;
    return result;
}

int deleteFile(sqlite3_vfs* /*disk*/, const char* name, int syncDirectory) {
    const int result = theDisk->judge(Operation::Delete);
    return result != SQLITE_OK ? result : theRealDisk->xDelete(theRealDisk, name, syncDirectory);
}

struct NamedFault {
    const char* name;
    FaultyDisk::Fault fault;
};
constexpr NamedFault faults[] = {
    {"write error", {Operation::Write, SQLITE_IOERR_WRITE}},
    {"disk full once", {Operation::Write, SQLITE_FULL}},
    {"disk full from then on", {Operation::Write, SQLITE_FULL, true}},
    {"sync error", {Operation::Sync, SQLITE_IOERR_FSYNC}},
    {"truncate error", {Operation::Truncate, SQLITE_IOERR_TRUNCATE}},
    {"open error", {Operation::Open, SQLITE_CANTOPEN}},
    {"delete error", {Operation::Delete, SQLITE_IOERR_DELETE}},
    {"read error", {Operation::Read, SQLITE_IOERR_READ}},
    {"all reads fail from then on", {Operation::Read, SQLITE_IOERR_READ, true}},
};

} // namespace

FaultyDisk::FaultyDisk() : face_(std::make_unique<sqlite3_vfs>()) {
    sqlite3_initialize();
    theDisk = this;
    theRealDisk = sqlite3_vfs_find(nullptr);
    *face_ = *theRealDisk;
    face_->szOsFile = static_cast<int>(sizeof(File)) + theRealDisk->szOsFile;
    face_->zName = "faulty";
    face_->xOpen = openFile;
    face_->xDelete = deleteFile;
    sqlite3_vfs_register(face_.get(), 1);
}

FaultyDisk::~FaultyDisk() {
    sqlite3_vfs_unregister(face_.get());
    sqlite3_vfs_register(theRealDisk, 1);
}

void FaultyDisk::arm(const Fault& fault, int n) {
    fault_ = fault;
    countdown_ = n;
    hit_ = false;
    armed_ = true;
}

void FaultyDisk::disarm() {
    armed_ = false;
}

int FaultyDisk::judge(Operation operation) {
    if (!armed_ || operation != fault_.operation)
        return SQLITE_OK;
    if (--countdown_ > 0)
        return SQLITE_OK;
    hit_ = true;
    armed_ = fault_.lasting;
    return fault_.result;
}

void FaultyDisk::withEachFault(const std::string& what, const std::function<bool(const Fault& fault, int n)>& attempt) {
    for (const NamedFault& named : faults) {
        int told = 0;
        int n = 0;
        do {
            ++n;
            SCOPED_TRACE(testing::Message() << what << ", " << named.name << ", number " << n);
            told += attempt(named.fault, n) ? 1 : 0;
            if (testing::Test::HasFailure())
                return;
        } while (hit_);
        std::printf("%s: %s at %d operations, told %d times\n", what.c_str(), named.name, n - 1, told);
        if (named.fault.operation == Operation::Write || named.fault.operation == Operation::Sync) {
            EXPECT_GT(told, 0) << what << ", " << named.name;
        }
    }
}

} // namespace vanzer::faults
