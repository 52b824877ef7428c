#include "core/text_file.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringConverter>

#include "core/code_page.h"
#include "core/disk.h"

namespace vanzer {

namespace {

QString decoded(const QByteArray& contents) {
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    QString text = utf8(contents);
    return utf8.hasError() ? fromCodePage(contents) : text;
}

} // namespace

QString motivoNonScritto(const QString& path) {
    const QFileInfo file(path);
    const QFileInfo folder(file.absolutePath());
    if (!folder.isDir())
        return QStringLiteral("la sua cartella non c'è.");
    if (!folder.isWritable() || file.isDir() || (file.exists() && !file.isWritable()))
        return QStringLiteral("lì non è permesso scrivere.");
    return QStringLiteral("il disco è pieno o protetto.");
}

QString scriveFile(const QString& path, const QByteArray& contents) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return motivoNonScritto(path);
    // Of a large file that fills the disk up a part is written, which is no error; of a small one the flush tells.
    return file.write(contents) == contents.size() ? mettePosto(file) : motivoNonScritto(path);
}

// Putting it into place is no word on the disk: a failure of the last write comes up when that is waited for.
QString mettePosto(QSaveFile& file) {
    const QString unsafe = QStringLiteral("il disco non conferma la scrittura (%1).");
    if (!file.flush() || file.error() != QFileDevice::NoError)
        return motivoNonScritto(file.fileName());
    if (const QString reason = alSicuro(file.handle()); !reason.isEmpty())
        return unsafe.arg(reason);
    if (!file.commit())
        return motivoNonScritto(file.fileName());
    const QString reason = alSicuro(QFileInfo(doveConduce(file.fileName())).path());
    return reason.isEmpty() ? QString() : unsafe.arg(reason);
}

QByteArray contenutoTesto(const QStringList& lines) {
    QByteArray contents;
    for (const QString& line : lines)
        contents += toCodePage(line) + "\r\n";
    return contents;
}

QString motivoNonNormale() {
    return QStringLiteral("non è un file normale.");
}

FileLetto leggeFile(const QString& path) {
    if (!QFileInfo::exists(path))
        return {};
    if (!fileNormale(path))
        return {{}, motivoNonNormale()};
    QFile file(path);
    if (!apreInLettura(file))
        return {{}, QStringLiteral("non è permesso leggerlo.")};
    constexpr qint64 piece = 1 << 20;
    FileLetto read;
    const bool fits = file.size() <= fileMassimo;
    for (QByteArray bytes; fits && read.contenuto.size() <= fileMassimo && !(bytes = file.read(piece)).isEmpty();)
        read.contenuto += bytes; // it may grow meanwhile
    if (!fits || read.contenuto.size() > fileMassimo)
        return {{}, QStringLiteral("supera %1 MB.").arg(fileMassimo >> 20)};
    if (file.error() != QFileDevice::NoError)
        read.errore = QStringLiteral("il disco non lo dà.");
    return read;
}

RigheTesto::RigheTesto(const QByteArray& contents)
    : text_(decoded(contents)), end_(text_.contains(u'\n') || !text_.contains(u'\r') ? u'\n' : u'\r') {}

bool RigheTesto::prossima() {
    if (at_ >= text_.size())
        return false;
    const qsizetype found = text_.indexOf(end_, at_);
    const qsizetype end = found < 0 ? text_.size() : found;
    line_ = QStringView(text_).mid(at_, end - at_);
    while (line_.endsWith(u'\r'))
        line_.chop(1);
    at_ = end + 1;
    ++number_;
    return true;
}

} // namespace vanzer
