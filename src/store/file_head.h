// SPDX-License-Identifier: MIT
// Reads the first bytes of an archive and of its journal without the engine, to find out whether they belong together.
//
// The head of a file has three numbers of four bytes, highest byte first. At offset 24 is the engine's change counter,
// at 60 the version (user_version), at 68 the application (application_id). The version starts at a random number and
// goes up by one with each transaction, so it identifies both the archive and its state. The application is "Van" and
// the format number; archives made before formats had numbers have 0 there.
//
// A journal begins with a magic number, the number of its records (0 before it was synced), a seed for checksums, the
// number of pages of the file before the transaction, the size of a sector in bytes, which is also the offset of the
// first record, and the size of a page in bytes. A record is a page number, the page before the transaction, and a
// checksum over every 200th byte of it, counted from its end. Our transactions write page 1 first.
#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

namespace vanzer::store {

inline constexpr qint64 dimensioneTesta = 100;
/// Bytes of the smallest page, and so of the shortest file that the engine makes.
inline constexpr qint64 leastFile = 512;

inline constexpr quint32 formatoAttuale = 1;
inline constexpr quint32 applicazione = 0x56616e00 + formatoAttuale;

struct FileHead {
    quint32 changes = 0;
    quint32 version = 0;
    quint32 application = 0;

    friend bool operator==(const FileHead&, const FileHead&) = default;
    /// The format number; 0 if the file has none. Nothing if the application isn't ours.
    [[nodiscard]] std::optional<quint32> formato() const;
};

/// Decodes a head; nothing if the bytes aren't from a file of the engine.
[[nodiscard]] std::optional<FileHead> fileHead(QByteArrayView bytes);

/// The next version. Never 0: that means that versions were never counted.
[[nodiscard]] quint32 nextVersion(quint32 version);

/// True if a journal was written for another file than the one with this head and size (bytes), or for another state of
/// it. Such a journal must not be rolled back. False if there is no journal or it has nothing to roll back; true if it
/// isn't a plain file.
[[nodiscard]] bool isForeignJournal(const QString& journal, const FileHead& head, qint64 size);

} // namespace vanzer::store
