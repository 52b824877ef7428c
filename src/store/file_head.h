// The first bytes of an archive's file and of the engine's journal, read past the engine: whose they are, and how far.
//
// The head of a file holds, each as four bytes with the highest first, at 24 the engine's counter of changes, at 60 the
// version (user_version) and at 68 the application (application_id). The version begins at a number drawn by chance
// when a file is made and goes up by one with each transaction, so that it tells both the archive and its state. The
// application is "Van" and the number of the format; archives from before formats were counted have none.
//
// A journal begins with its mark, the number of its records (none before it was synced), a seed for their sums, the
// file's pages before the transaction, the size of a sector, at which the records begin, and that of a page. A record
// is a page's number, the page as it was, and a sum over each two-hundredth byte of it, from its end. Each transaction
// of ours begins with page 1.
#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

namespace vanzer::store {

inline constexpr qint64 dimensioneTesta = 100;
/// No file of the engine is shorter than its least page.
inline constexpr qint64 leastFile = 512;

inline constexpr quint32 formatoAttuale = 1;
inline constexpr quint32 applicazione = 0x56616e00 + formatoAttuale;

struct FileHead {
    quint32 changes = 0;
    quint32 version = 0;
    quint32 application = 0;

    friend bool operator==(const FileHead&, const FileHead&) = default;
    /// The format's number if the file is one of ours: 0 where none is told.
    [[nodiscard]] std::optional<quint32> formato() const;
};

/// Nothing if the bytes aren't the head of a file of the engine.
[[nodiscard]] std::optional<FileHead> fileHead(QByteArrayView bytes);

/// The version behind this one. Never 0, which a file has that never counted.
[[nodiscard]] quint32 nextVersion(quint32 version);

/// Whether a journal that waits to be rolled back into the file of that head and size (bytes) was written for another
/// file, or for an earlier or later state of it. No for one that isn't there or holds nothing to roll back; yes for
/// what is no plain file.
[[nodiscard]] bool isForeignJournal(const QString& journal, const FileHead& head, qint64 size);

} // namespace vanzer::store
