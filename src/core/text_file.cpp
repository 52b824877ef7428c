#include "core/text_file.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringConverter>

#include "core/code_page.h"

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
    const bool whole = file.write(contents) == contents.size() && file.flush() && file.commit();
    return whole ? QString() : motivoNonScritto(path);
}

QString scriveFileTesto(const QString& path, const QStringList& lines) {
    QByteArray contents;
    for (const QString& line : lines)
        contents += toCodePage(line) + "\r\n";
    return scriveFile(path, contents);
}

FileLetto leggeFile(const QString& path) {
    QFile file(path);
    if (!file.exists())
        return {};
    if (!file.open(QIODevice::ReadOnly))
        return {{}, QStringLiteral("non è permesso leggerlo.")};
    FileLetto read{file.readAll(), {}};
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
