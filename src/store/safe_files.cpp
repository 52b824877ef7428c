// SPDX-License-Identifier: MIT
#include "store/safe_files.h"

#include <filesystem>
#include <system_error>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "core/disk.h"
#include "store/error.h"

namespace vanzer::store {

namespace {

[[noreturn]] void failed(const QString& path, const QString& reason) {
    throw StoreError(StoreError::Kind::Io, path, reason);
}

void makeSafe(const QString& path, const QString& file) {
    if (const QString reason = alSicuro(path); !reason.isEmpty())
        failed(file, reason);
}

std::error_code renamed(const QString& from, const QString& to) {
    std::error_code error;
    std::filesystem::rename(QFileInfo(from).filesystemFilePath(), QFileInfo(to).filesystemFilePath(), error);
    return error;
}

/// Moves a file to another disk. The copy has the permissions of `from` before its first byte is written.
void moveAcross(const QString& from, const QString& to) {
    const QString beside = to + QStringLiteral(".parte");
    try {
        removeFile(beside);
        copyRights(from, beside);
        std::error_code error;
        std::filesystem::copy_file(QFileInfo(from).filesystemFilePath(), QFileInfo(beside).filesystemFilePath(),
                                   std::filesystem::copy_options::overwrite_existing, error);
        if (!error) {
            makeSafe(beside, to);
            error = renamed(beside, to);
        }
        if (error)
            failed(to, QString::fromStdString(error.message()));
    } catch (const StoreError&) {
        removeFile(beside);
        throw;
    }
    removeFile(from);
}

#ifdef Q_OS_UNIX

constexpr mode_t rightsOf(const struct stat& file) {
    return file.st_mode & 0777U;
}

/// Without the same group, no permissions for the group: they were meant for another one.
mode_t rightsFor(const struct stat& from, bool sameGroup) {
    return sameGroup ? rightsOf(from) : rightsOf(from) & ~mode_t{070};
}

void makeWithRights(const struct stat& from, const QByteArray& name, const QString& path) {
    const int handle = ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (handle < 0)
        failed(path, qt_error_string(errno));
    const bool given =
        ::fchown(handle, from.st_uid, from.st_gid) == 0 || ::fchown(handle, static_cast<uid_t>(-1), from.st_gid) == 0;
    static_cast<void>(::fchmod(handle, rightsFor(from, given)));
    ::close(handle);
}

/// Permissions for the folder: users who may read the file may list it, users who may write the file may add to it.
mode_t rightsOfFolder(const struct stat& file) {
    const mode_t rights = rightsOf(file) & 0066U;
    return 0700U | rights | (rights & 0044U) >> 2U;
}

/// Takes permissions of an existing folder from users who may not read the file.
void narrow(const QByteArray& folder, const struct stat& file) {
    struct stat older {};
    if (::lstat(folder.constData(), &older) != 0 || !S_ISDIR(older.st_mode))
        return;
    const mode_t shut = (rightsOf(file) & 0040U ? 0U : 0070U) | (rightsOf(file) & 0004U ? 0U : 0007U);
    if ((older.st_mode & shut) != 0)
        static_cast<void>(::chmod(folder.constData(), older.st_mode & 07777U & ~shut));
}

#endif

} // namespace

void removeFile(const QString& path) noexcept {
    removeRemains(path);
    QFile::remove(path);
}

void removeRemains(const QString& path) noexcept {
    QFile::remove(path + QStringLiteral("-journal"));
}

void copyRights(const QString& from, const QString& to) {
#ifdef Q_OS_UNIX
    struct stat source {};
    if (::stat(QFile::encodeName(from).constData(), &source) != 0)
        failed(from, qt_error_string(errno));
    const QByteArray name = QFile::encodeName(to);
    struct stat target {};
    if (::lstat(name.constData(), &target) != 0)
        return makeWithRights(source, name, to);
    // Works on the name and never opens the file: closing a file that the engine has open would release its lock.
    const bool given = (target.st_uid == source.st_uid && target.st_gid == source.st_gid) ||
                       ::chown(name.constData(), source.st_uid, source.st_gid) == 0 ||
                       ::chown(name.constData(), static_cast<uid_t>(-1), source.st_gid) == 0;
    if (rightsOf(target) != rightsFor(source, given))
        static_cast<void>(::chmod(name.constData(), rightsFor(source, given)));
#else
    if (QFileInfo::exists(to))
        return;
    QFile made(to);
    if (!made.open(QIODevice::WriteOnly))
        failed(to, made.errorString());
#endif
}

bool cartellaPer(const QString& file, const QString& folder) {
#ifdef Q_OS_UNIX
    struct stat source {};
    const QByteArray name = QFile::encodeName(folder);
    if (::stat(QFile::encodeName(file).constData(), &source) == 0 &&
        ::mkdir(name.constData(), rightsOfFolder(source)) != 0)
        narrow(name, source);
#else
    (void)file;
#endif
    return QDir().mkpath(folder);
}

void putInPlace(const QString& from, const QString& to) {
    const QString place = doveConduce(to);
    makeSafe(from, to);
    if (const std::error_code error = renamed(from, place); error == std::errc::cross_device_link)
        moveAcross(from, place);
    else if (error)
        failed(to, QString::fromStdString(error.message()));
    makeSafe(QFileInfo(place).path(), to);
}

} // namespace vanzer::store
