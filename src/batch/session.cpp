// SPDX-License-Identifier: MIT
#include "batch/session.h"

#include <cerrno>

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>

#include "batch/answer.h"
#include "batch/state_view.h"
#include "core/code_page.h"
#include "core/disk.h"
#include "startup/startup.h"
#include "startup/ways_out.h"
#include "store/outside_files.h"

namespace vanzer::batch {

namespace {

QJsonObject recordsOf(store::Archive& archive, const QString& name) {
    if (archive.Db(0)->tabella(name) == nullptr)
        return failure(QStringLiteral("no such table"));
    return records(archive.tabella(name));
}

/// Error number and English text of a cause, whatever the locale.
struct FileCause {
    int number;
    const char* name;
};
constexpr FileCause notThere{ENOENT, "No such file or directory"};
constexpr FileCause notReadable{EACCES, "Permission denied"};
constexpr FileCause notPlain{EINVAL, "Invalid argument"};
constexpr FileCause isDirectory{EISDIR, "Is a directory"};

QJsonObject fileFailure(const FileCause& cause, const QString& path) {
    const QString name = QString::fromLatin1(cause.name);
    return failure(QStringLiteral("[Errno %1] %2: '%3'").arg(QString::number(cause.number), name, path));
}

QJsonArray linesOf(const QByteArray& bytes) {
    QJsonArray lines;
    QList<QByteArray> parts = bytes.split('\n');
    if (parts.last().isEmpty())
        parts.removeLast();
    for (const QByteArray& part : parts)
        lines.append(fromCodePage(part.endsWith('\r') ? part.chopped(1) : part));
    return lines;
}

} // namespace

Session::Session(Ambiente surroundings)
    : printer(dialogs, clock, QDir(surroundings.directory).filePath(store::nomeArchivio)),
      surroundings_(std::move(surroundings)) {
    events.onEnd = [this] {
        if (form_ != nullptr)
            interruptUnasked(*form_);
    };
}

void Session::start() {
    close();
    printer.reset();
    form_ = startWindow(surroundings_, ports_);
}

QJsonObject Session::table(const QString& name) const {
    if (form_ && form_->archivio.Db(0) != nullptr)
        return recordsOf(form_->archivio, name);
    store::Archive file(surroundings_.directory);
    file.PercorsoDatabase = file.PercorsoProgramma + store::nomeArchivio;
    file.DatabaseApre(0);
    return recordsOf(file, name);
}

QJsonObject Session::textFile(const QString& name) const {
    const QString path = QDir(surroundings_.directory).filePath(name);
    const QFileInfo file(path);
    if (file.isDir())
        return fileFailure(isDirectory, path);
    if (!file.exists())
        return fileFailure(notThere, path);
    if (!fileNormale(path))
        return fileFailure(notPlain, path);
    const bool open = form_ && form_->archivio.Db(0) != nullptr;
    const FileLetto read = store::readFromOthers(path, open ? form_->archivio.PercorsoDatabase : QString());
    if (!read.errore.isEmpty())
        return fileFailure(notReadable, path);
    return {{"lines", linesOf(read.contenuto)}};
}

} // namespace vanzer::batch
