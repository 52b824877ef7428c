// What the store throws: one family, sorted by what the user can do about it.
#pragma once

#include <exception>

#include <QByteArray>
#include <QString>

namespace vanzer::store {

/// A failure of the archive. Whatever the kind, what was stored before the failed command is still stored.
class StoreError : public std::exception {
  public:
    enum class Kind {
        NotFound, ///< no such file or directory
        Corrupt,  ///< not an archive, or damaged
        Busy,     ///< open in another program
        Full,     ///< no room left on the disk
        ReadOnly, ///< file or directory can't be written
        Replaced, ///< another program has changed the file under this one
        Newer,    ///< of a later format than this program knows
        Unlike,   ///< its tables have the fields that we know in another order
        Io,       ///< the system failed to read or write
        Other     ///< a fault of the caller: unknown table or field, unreadable query, misused set
    };

    /// `detail` is the technical cause, shown for Io and Other; the format's number for Newer, the table for Unlike.
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

/// The kind of an engine result code, plain or extended.
[[nodiscard]] StoreError::Kind kindOfResult(int resultCode);

} // namespace vanzer::store
