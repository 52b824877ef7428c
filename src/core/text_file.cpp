// SPDX-License-Identifier: MIT
#include "core/text_file.h"

#include <numeric>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "core/code_page.h"
#include "core/disk.h"

namespace vanzer {

namespace {

constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");

/// UTF-16 units of valid UTF-8. A character of four bytes takes two units.
qsizetype charactersOf(QByteArrayView utf8) {
    return std::accumulate(utf8.begin(), utf8.end(), qsizetype{0}, [](qsizetype sum, char c) {
        const auto byte = static_cast<unsigned char>(c);
        return sum + ((byte & 0xC0U) != 0x80U ? 1 : 0) + (byte >= 0xF0U ? 1 : 0);
    });
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

QString writeFile(const QString& path, const QByteArray& contents) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return motivoNonScritto(path);
    // On a full disk a large file is written only in part, which Qt doesn't count as an error. A small file fails at
    // the flush.
    return file.write(contents) == contents.size() ? commitFile(file) : motivoNonScritto(path);
}

// The rename alone doesn't show a failed write: that shows only when the program waits for the disk.
QString commitFile(QSaveFile& file) {
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

FileLetto readFile(const QString& path) {
    if (!QFileInfo::exists(path))
        return {};
    if (!fileNormale(path))
        return {{}, motivoNonNormale()};
    QFile file(path);
    if (!openReadOnly(file))
        return {{}, QStringLiteral("non è permesso leggerlo.")};
    constexpr qint64 piece = 1 << 20;
    FileLetto read;
    const bool fits = file.size() <= fileMassimo;
    for (QByteArray bytes; fits && read.contenuto.size() <= fileMassimo && !(bytes = file.read(piece)).isEmpty();)
        read.contenuto += bytes; // the file may grow meanwhile
    if (!fits || read.contenuto.size() > fileMassimo)
        return {{}, QStringLiteral("supera %1 MB.").arg(fileMassimo >> 20)};
    if (file.error() != QFileDevice::NoError)
        read.errore = QStringLiteral("il disco non lo dà.");
    return read;
}

RigheTesto::RigheTesto(const QByteArray& contents)
    : contents_(contents), utf8_(QByteArrayView(contents).isValidUtf8()),
      end_(contents.contains('\n') || !contents.contains('\r') ? '\n' : '\r') {
    if (utf8_ && contents.startsWith(byteOrderMark))
        at_ = byteOrderMark.size();
    length_ = utf8_ ? charactersOf(QByteArrayView(contents_).sliced(at_)) : contents_.size();
}

bool RigheTesto::prossima() {
    if (at_ >= contents_.size())
        return false;
    const qsizetype found = contents_.indexOf(end_, at_);
    QByteArrayView bytes = QByteArrayView(contents_).sliced(at_, (found < 0 ? contents_.size() : found) - at_);
    at_ += bytes.size() + 1;
    while (bytes.endsWith('\r'))
        bytes.chop(1);
    decode(bytes);
    ++number_;
    return true;
}

void RigheTesto::decode(QByteArrayView bytes) {
    if (!utf8_) {
        text_ = fromCodePage(bytes);
        line_ = text_;
        return;
    }
    if (const qsizetype room = decoder_.requiredSpace(bytes.size()); text_.size() < room)
        text_.resize(room);
    line_ = QStringView(text_.constData(), decoder_.appendToBuffer(text_.data(), bytes));
}

} // namespace vanzer
