#include "batch/session.h"

#include <cerrno>
#include <cstring>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>

#include "batch/answer.h"
#include "batch/code_page.h"
#include "batch/state_view.h"
#include "window/startup.h"

namespace vanzer::batch {

namespace {

QJsonObject recordsOf(store::Archive& archive, const QString& name) {
    if (archive.Db(0)->tabella(name) == nullptr)
        return failure(QStringLiteral("no such table"));
    return records(archive.tabella(name));
}

/// In the words of the system: "[Errno 2] No such file or directory: 'x.txt'".
QJsonObject fileFailure(int cause, const QString& path) {
    return failure(
        QStringLiteral("[Errno %1] %2: '%3'").arg(cause).arg(QString::fromLocal8Bit(std::strerror(cause)), path));
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

void Session::start() {
    close();
    printer.reset();
    form_ = avvia(surroundings_, ports_);
}

QJsonObject Session::table(const QString& name) const {
    if (form_ && form_->archivio.Db(0) != nullptr)
        return recordsOf(form_->archivio, name);
    store::Archive file(surroundings_.directory);
    file.PercorsoDatabase = file.PercorsoProgramma + QStringLiteral("Vanzer.mdb");
    file.DatabaseApre(0);
    return recordsOf(file, name);
}

QJsonObject Session::textFile(const QString& name) const {
    const QString path = QDir(surroundings_.directory).filePath(name);
    QFile file(path);
    if (QFileInfo(path).isDir())
        return fileFailure(EISDIR, path);
    if (!file.exists())
        return fileFailure(ENOENT, path);
    if (!file.open(QIODevice::ReadOnly))
        return fileFailure(EACCES, path);
    return {{"lines", linesOf(file.readAll())}};
}

} // namespace vanzer::batch
