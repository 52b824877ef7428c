// SPDX-License-Identifier: MIT
#include "store/draft_file.h"

#include <filesystem>
#include <system_error>

#include <QFile>
#include <QFileInfo>

#include "core/disk.h"
#include "core/draft.h"
#include "store/error.h"
#include "store/safe_files.h"

namespace vanzer::store {

std::optional<QByteArray> readDraft(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return std::nullopt;
    if (!fileNormale(path))
        throw StoreError(StoreError::Kind::Corrupt, path);
    QFile file(path);
    if (!openReadOnly(file))
        throw StoreError(StoreError::Kind::Io, path, file.errorString());
    QByteArray bytes = file.read(massimaBozza + 1);
    if (file.error() != QFileDevice::NoError)
        throw StoreError(StoreError::Kind::Io, path, file.errorString());
    if (bytes.size() > massimaBozza)
        throw StoreError(StoreError::Kind::Corrupt, path);
    return bytes;
}

void writeDraft(const QString& path, const QByteArray& bytes) {
    const QString aside = path + QStringLiteral(".parte");
    QFile::remove(aside); // left by a program that was killed
    QFile file(aside);
    const bool written = file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner) &&
                         file.write(bytes) == bytes.size() && file.flush();
    const StoreError failure(StoreError::Kind::Io, path, file.errorString());
    file.close();
    try {
        if (!written)
            throw StoreError(failure);
        putInPlace(aside, path);
    } catch (const StoreError&) {
        QFile::remove(aside);
        throw;
    }
}

void removeDraft(const QString& path) noexcept {
    QFile::remove(path);
}

QString setDraftAside(const QString& path, QLatin1String ending) {
    QString other = path + ending;
    std::error_code error;
    std::filesystem::rename(QFileInfo(path).filesystemFilePath(), QFileInfo(other).filesystemFilePath(), error);
    if (error)
        throw StoreError(StoreError::Kind::Io, path, QString::fromStdString(error.message()));
    static_cast<void>(alSicuro(QFileInfo(path).path()));
    return other;
}

} // namespace vanzer::store
