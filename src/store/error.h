// SPDX-License-Identifier: MIT
// The exceptions of the store. Their kinds follow what the user can do about them.
#pragma once

#include <exception>

#include <QByteArray>
#include <QString>

namespace vanzer::store {

/// A failure of the archive. What was stored before the failed command stays stored, whatever the kind.
class StoreError : public std::exception {
  public:
    enum class Kind {
        NotFound, ///< no such file or directory
        Corrupt,  ///< not an archive, or damaged
        Busy,     ///< open in another program
        Full,     ///< no room left on the disk
        ReadOnly, ///< file or directory can't be written
        Replaced, ///< another program has changed the file under this one
        Newer,    ///< its format is newer than this program knows
        Unlike,   ///< its tables have the declared fields in another order
        Io,       ///< the operating system failed to read or write
        Other     ///< an error of the caller: unknown table or field, invalid query, misuse of a set
    };

    /// `detail` depends on the kind: the technical cause for Io and Other, the format number for Newer, the table's
    /// name for Unlike.
    StoreError(Kind kind, QString path, QString detail = {});

    [[nodiscard]] Kind kind() const { return kind_; }
    [[nodiscard]] const QString& path() const { return path_; }
    /// The text for the user, in Italian: which file, what happened, what was kept.
    [[nodiscard]] QString testo() const;
    /// The same text as UTF-8.
    [[nodiscard]] const char* what() const noexcept override { return what_.constData(); }

  private:
    Kind kind_;
    QString path_;
    QString detail_;
    QByteArray what_;
};

/// The kind for a result code of the engine, plain or extended.
[[nodiscard]] StoreError::Kind kindOfResult(int resultCode);

} // namespace vanzer::store
