#include "faults/failing_sync.h"

#include <cerrno>
#include <optional>

#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace vanzer::faults {

namespace {

std::optional<FailingSync::Of> failing;

int sync(long call, int handle) {
    struct stat file {};
    if (failing && ::fstat(handle, &file) == 0 && S_ISDIR(file.st_mode) == (*failing == FailingSync::Of::Folders)) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(::syscall(call, handle));
}

} // namespace

FailingSync::FailingSync(Of which) {
    failing = which;
}

FailingSync::~FailingSync() {
    failing.reset();
}

} // namespace vanzer::faults

// In the place of the C library's, for all libraries of the program.
extern "C" int fsync(int handle) {
    return vanzer::faults::sync(SYS_fsync, handle);
}
extern "C" int fdatasync(int handle) {
    return vanzer::faults::sync(SYS_fdatasync, handle);
}
