#include "store/safe_files.h"

#include <filesystem>
#include <system_error>

#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

#include "store/error.h"

namespace vanzer::store {

namespace {

/// A new name is safe once its directory is.
void syncDirectory(const QString& directory) {
#ifdef Q_OS_UNIX
    const int handle = ::open(QFile::encodeName(directory).constData(), O_RDONLY | O_CLOEXEC);
    if (handle >= 0) {
        ::fsync(handle);
        ::close(handle);
    }
#else
    (void)directory;
#endif
}

} // namespace

void toglieFile(const QString& path) noexcept {
    toglieResti(path);
    QFile::remove(path);
}

void toglieResti(const QString& path) noexcept {
    QFile::remove(path + QStringLiteral("-journal"));
}

void metteAlPosto(const QString& from, const QString& to) {
    std::error_code error;
    std::filesystem::rename(QFileInfo(from).filesystemFilePath(), QFileInfo(to).filesystemFilePath(), error);
    if (error)
        throw StoreError(StoreError::Kind::Io, to, QString::fromStdString(error.message()));
    syncDirectory(QFileInfo(to).path());
}

} // namespace vanzer::store
