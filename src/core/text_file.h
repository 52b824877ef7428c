// SPDX-License-Identifier: MIT
// Text files exchanged with other programs. They are written in code page 1252 with CR LF at line ends, and read with
// any usual encoding and line ends.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringDecoder>
#include <QStringList>

class QSaveFile;

namespace vanzer {

/// Why a file could not be written, in Italian. Looks at the path after the failure.
[[nodiscard]] QString motivoNonScritto(const QString& path);

/// Writes a temporary file and renames it to `path`. The old file stays until the new one is complete and safe on the
/// disk. Returns the reason of a failure in Italian, else an empty text.
[[nodiscard]] QString writeFile(const QString& path, const QByteArray& contents);

/// The last steps of writeFile, for callers that write piece by piece. Returns as writeFile. If it fails but the file
/// is closed and has no error, the new file is in place and only its folder isn't safe on the disk.
[[nodiscard]] QString commitFile(QSaveFile& file);

/// The bytes of a text file.
[[nodiscard]] QByteArray contenutoTesto(const QStringList& lines);

inline constexpr qint64 fileMassimo = 512LL * 1024 * 1024; ///< largest file that is read, in bytes

struct FileLetto {
    QByteArray contenuto; ///< empty if the file doesn't exist
    QString errore;       ///< why an existing file can't be read, in Italian, as the end of a sentence
};

/// Reads a plain file of at most `fileMassimo` bytes. Refuses files that may never end or may block: pipes, devices and
/// the kernel's virtual files.
[[nodiscard]] FileLetto readFile(const QString& path);
[[nodiscard]] QString motivoNonNormale();

/// Iterates over the lines of a text. The text is UTF-8 if all its bytes are valid UTF-8, else code page 1252. A line
/// ends with CR LF or LF; a lone CR ends lines only where the text has no LF at all.
///
/// Lines are decoded one at a time, so that memory stays near the size of the bytes.
class RigheTesto {
  public:
    explicit RigheTesto(const QByteArray& contents);

    /// Characters (UTF-16 units) of the whole text.
    [[nodiscard]] qsizetype lunghezza() const { return length_; }
    /// Moves to the next line; false if there is none.
    bool prossima();
    /// The current line without its line end, and its number from 1. The view holds until the next call of prossima().
    [[nodiscard]] QStringView riga() const { return line_; }
    [[nodiscard]] int numero() const { return number_; }

  private:
    void decode(QByteArrayView bytes);

    QByteArray contents_;
    bool utf8_;
    char end_;
    qsizetype length_;
    qsizetype at_ = 0;
    QStringDecoder decoder_{QStringConverter::Utf8,
                            QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom};
    QString text_; ///< buffer of the current line; keeps its capacity
    QStringView line_;
    int number_ = 0;
};

} // namespace vanzer
