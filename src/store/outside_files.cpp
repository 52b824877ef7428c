// SPDX-License-Identifier: MIT
#include "store/outside_files.h"

#include <algorithm>

#include <QDir>
#include <QFileInfo>

#include "core/disk.h"
#include "store/archive.h"
#include "store/daily_copy.h"

namespace vanzer::store {

namespace {

/// Ignores case, as some file systems do.
bool belongsTo(QStringView name, QStringView engineFile) {
    if (!name.startsWith(engineFile, Qt::CaseInsensitive))
        return false;
    const QStringView rest = name.sliced(engineFile.size());
    return rest.isEmpty() || rest.startsWith(u'-') || rest == u".lock" || rest == u".parte";
}

bool isOneOf(const QString& file, const QFileInfoList& others) {
    return std::ranges::any_of(others, [&file](const QFileInfo& o) { return stessoFile(file, o.filePath()); });
}

/// True for the archive and for the engine's files beside it, also under another name through a link.
bool isArchive(const QFileInfo& file, const QFileInfo& archive) {
    const auto isEngines = [&archive](const QFileInfo& f) {
        return belongsTo(f.fileName(), archive.fileName()) || belongsTo(f.fileName(), QString(nomeRicostruzione));
    };
    if (isEngines(file) && stessoFile(file.path(), archive.path()))
        return true;
    if (!file.exists())
        return false;
    QFileInfoList engines = archive.dir().entryInfoList(QDir::Files | QDir::Hidden);
    engines.removeIf([&isEngines](const QFileInfo& f) { return !isEngines(f); });
    return isOneOf(file.filePath(), engines);
}

bool isCopy(const QFileInfo& file, const QString& copies) {
    if (!QFileInfo(copies).isDir())
        return false;
    for (QString folder = file.path(), above; folder != above; above = folder, folder = QFileInfo(folder).path()) {
        if (stessoFile(folder, copies))
            return true;
    }
    return file.exists() && isOneOf(file.filePath(), QDir(copies).entryInfoList(QDir::Files | QDir::Hidden));
}

} // namespace

QString motivoRiservato(const QString& path, const QString& archivePath) {
    const QFileInfo file(doveConduce(path));
    if (!archivePath.isEmpty()) {
        for (const QString& name : {archivePath, doveConduce(archivePath)}) {
            if (isArchive(file, QFileInfo(QFileInfo(name).absoluteFilePath())))
                return QStringLiteral("è l'archivio: scegliere un altro nome.");
        }
        if (isCopy(file, cartellaCopie(archivePath)))
            return QStringLiteral("è una copia dell'archivio: scegliere un altro nome.");
    }
    return file.exists() && !file.isFile() && !file.isDir() ? motivoNonNormale() : QString();
}

QString writeForOthers(const QString& path, const QByteArray& contents, const QString& archivePath) {
    const QString reserved = motivoRiservato(path, archivePath);
    return reserved.isEmpty() ? writeFile(path, contents) : reserved;
}

FileLetto readFromOthers(const QString& path, const QString& archivePath) {
    return stessoFile(path, archivePath) ? FileLetto{{}, QStringLiteral("è l'archivio stesso.")} : readFile(path);
}

} // namespace vanzer::store
