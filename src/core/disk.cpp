// SPDX-License-Identifier: MIT
#include "core/disk.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif
#ifdef Q_OS_LINUX
#include <linux/magic.h>
#include <sys/vfs.h>
#endif

namespace vanzer {

namespace {

std::filesystem::path onDisk(const QString& path) {
    return QFileInfo(path).filesystemAbsoluteFilePath();
}

} // namespace

QString doveConduce(const QString& path) {
    constexpr int mostLinks = 40; // more count as a loop, as in Linux
    std::filesystem::path at = onDisk(path);
    std::error_code error;
    for (int link = 0; link < mostLinks && std::filesystem::is_symlink(at, error); ++link) {
        const std::filesystem::path target = std::filesystem::read_symlink(at, error);
        if (error)
            break;
        at = at.parent_path() / target;
    }
    const std::filesystem::path whole = std::filesystem::weakly_canonical(at, error);
    const QFileInfo found(error ? at : whole);
    // QFileInfo can't represent a folder whose name isn't valid text.
    return found.filesystemFilePath() == whole ? found.filePath() : QFileInfo(at).filePath();
}

QString nomeComeTesto(const QByteArray& name) {
    QString text = QFile::decodeName(name);
#ifdef Q_OS_LINUX
    std::error_code error;
    const std::string whole = std::filesystem::absolute(name.toStdString(), error).string();
    if (!error && QFile::encodeName(QFile::decodeName(whole.c_str())) != whole.c_str()) {
        // Never closed: the name is used until the program ends.
        if (const int there = ::open(name.constData(), O_PATH); there >= 0)
            text = QStringLiteral("/proc/self/fd/%1").arg(there);
    }
#endif
    return text;
}

QStringList argomentiComeTesto(int argc, const char* const* argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        const QByteArray argument(argv[i]);
        const qsizetype value = argument.startsWith("--") ? argument.indexOf('=') + 1 : 0;
        arguments << QFile::decodeName(argument.first(value)) + nomeComeTesto(argument.sliced(value));
    }
    return arguments;
}

bool stessoFile(const QString& path, const QString& other) {
    std::error_code error;
    return !path.isEmpty() && !other.isEmpty() && std::filesystem::equivalent(onDisk(path), onDisk(other), error);
}

bool openReadOnly(QFile& file) {
#ifdef Q_OS_UNIX
    if (!file.fileName().startsWith(u':')) {
        const int flags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
        const int handle = ::open(QFile::encodeName(file.fileName()).constData(), flags);
        struct stat opened {};
        if (handle >= 0 && ::fstat(handle, &opened) == 0 && S_ISREG(opened.st_mode) &&
            file.open(handle, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
            return true;
        if (handle >= 0)
            ::close(handle);
        return false;
    }
#endif
    return file.open(QIODevice::ReadOnly);
}

bool fileNormale(const QString& path) {
    if (!QFileInfo(path).isFile())
        return false;
#ifdef Q_OS_LINUX
    // The kernel's virtual file systems: their files are produced while they are read, and some never end.
    constexpr std::array views{PROC_SUPER_MAGIC, SYSFS_MAGIC, DEBUGFS_MAGIC, TRACEFS_MAGIC, CGROUP2_SUPER_MAGIC};
    struct statfs disk {};
    if (::statfs(QFile::encodeName(path).constData(), &disk) == 0 && std::ranges::count(views, disk.f_type) > 0)
        return false;
#endif
    return true;
}

#ifdef Q_OS_UNIX

QString alSicuro(int handle) {
    if (::fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP)
        return {};
    return qt_error_string(errno);
}

QString alSicuro(const QString& path) {
    const int handle = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (handle < 0)
        return errno == EACCES ? QString() : qt_error_string(errno); // may be writable and yet not readable
    QString reason = alSicuro(handle);
    ::close(handle);
    return reason;
}

#else

QString alSicuro(int /*handle*/) {
    return {};
}

QString alSicuro(const QString& /*path*/) {
    return {};
}

#endif

} // namespace vanzer
