// Text files that go to other programs and come from them: written in code page 1252 with lines closed by CR LF, read
// whatever their code and line ends are.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace vanzer {

/// Why a file could not be written, in Italian: found out from the path after the failure.
[[nodiscard]] QString motivoNonScritto(const QString& path);

/// Writes the file aside and puts it into place: what was there before stays until the new one is whole. The result is
/// the reason of a failure, empty when all went well.
[[nodiscard]] QString scriveFile(const QString& path, const QByteArray& contents);
[[nodiscard]] QString scriveFileTesto(const QString& path, const QStringList& lines);

struct FileLetto {
    QByteArray contenuto; ///< nothing of a file that isn't there
    QString errore;       ///< why a file that is there can't be read
};
[[nodiscard]] FileLetto leggeFile(const QString& path);

/// The lines of a text: UTF-8 where the bytes are valid UTF-8, else the code page. A line ends with CR LF or LF; CR
/// alone ends lines where there is no LF at all.
class RigheTesto {
  public:
    explicit RigheTesto(const QByteArray& contents);

    /// Characters of the whole text; in the code page as many as bytes.
    [[nodiscard]] qsizetype lunghezza() const { return text_.size(); }
    /// Moves to the next line; false if there is none.
    bool prossima();
    /// The current line without its end, and its number from 1.
    [[nodiscard]] QStringView riga() const { return line_; }
    [[nodiscard]] int numero() const { return number_; }

  private:
    QString text_;
    QChar end_;
    qsizetype at_ = 0;
    QStringView line_;
    int number_ = 0;
};

} // namespace vanzer
