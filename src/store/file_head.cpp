// SPDX-License-Identifier: MIT
#include "store/file_head.h"

#include <limits>

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace vanzer::store {

namespace {

quint32 number(QByteArrayView bytes, qsizetype at) {
    return qFromBigEndian<quint32>(bytes.data() + at);
}

struct JournalHead {
    static constexpr qint64 size = 28;

    quint32 records;
    quint32 seed;
    quint32 pages;
    quint32 sector;
    quint32 page;
};

bool isPowerOfTwo(quint32 size, quint32 least, quint32 most) {
    return size >= least && size <= most && (size & (size - 1)) == 0;
}

/// Decodes the head of a journal; nothing if there is nothing to roll back.
std::optional<JournalHead> journalHead(QByteArrayView bytes) {
    constexpr QByteArrayView mark("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7");
    if (bytes.size() < JournalHead::size || !bytes.startsWith(mark))
        return std::nullopt;
    const JournalHead head{number(bytes, 8), number(bytes, 12), number(bytes, 16), number(bytes, 20),
                           number(bytes, 24)};
    if (!isPowerOfTwo(head.sector, 32, 65536) || !isPowerOfTwo(head.page, 512, 65536))
        return std::nullopt;
    return head;
}

quint32 sumOf(QByteArrayView page, quint32 seed) {
    quint32 sum = seed;
    for (qsizetype at = page.size() - 200; at > 0; at -= 200)
        sum += static_cast<unsigned char>(page[at]);
    return sum;
}

/// The head of the file before the transaction, read from page 1 in the journal.
std::optional<FileHead> headInJournal(QFile& journal, const JournalHead& head) {
    const qint64 recordSize = qint64{head.page} + 8;
    if (!journal.seek(head.sector))
        return std::nullopt;
    for (quint32 record = 0; head.records == 0 || record < head.records; ++record) {
        const QByteArray bytes = journal.read(recordSize);
        if (bytes.size() < recordSize)
            return std::nullopt;
        const QByteArrayView page = QByteArrayView(bytes).sliced(4, head.page);
        if (sumOf(page, head.seed) != number(bytes, 4 + qsizetype{head.page}))
            return std::nullopt;
        if (number(bytes, 0) == 1)
            return fileHead(page);
    }
    return std::nullopt;
}

} // namespace

std::optional<quint32> FileHead::formato() const {
    if (application == 0)
        return 0;
    const quint32 format = application & 0xff;
    return application - format == applicazione - formatoAttuale ? std::optional(format) : std::nullopt;
}

std::optional<FileHead> fileHead(QByteArrayView bytes) {
    if (bytes.size() < dimensioneTesta || !bytes.startsWith(QByteArrayView("SQLite format 3\0", 16)))
        return std::nullopt;
    return FileHead{number(bytes, 24), number(bytes, 60), number(bytes, 68)};
}

quint32 nextVersion(quint32 version) {
    constexpr quint32 last = std::numeric_limits<qint32>::max();
    return version >= last ? 1 : version + 1;
}

bool isForeignJournal(const QString& path, const FileHead& file, qint64 size) {
    const QFileInfo info(path);
    if (!info.isFile())
        return info.exists() || info.isSymLink();
    QFile journal(path);
    if (!journal.open(QIODevice::ReadOnly))
        return false;
    const auto head = journalHead(journal.read(JournalHead::size));
    if (!head)
        return false;
    const auto before = headInJournal(journal, *head);
    if (!before) {
        // A journal that was never synced has changed no page. But rolling it back sets the file's length.
        if (head->records == 0)
            return qint64{head->pages} * head->page != size;
        return file.application != 0;
    }
    if (file.version == before->version || file.version == nextVersion(before->version))
        return false;
    // Versions start anywhere: at the first transaction of a file without one, or when an older archive gets its format
    // number.
    const bool begins = before->version == 0 || (before->application == 0 && file.application != 0);
    return !begins || file.changes - before->changes > 1;
}

} // namespace vanzer::store
