// Text files that go to other programs and come from them: written in code page 1252 with lines closed by CR LF, read
// whatever their code and line ends are.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringDecoder>
#include <QStringList>

class QSaveFile;

namespace vanzer {

/// Why a file could not be written, in Italian: found out from the path after the failure.
[[nodiscard]] QString motivoNonScritto(const QString& path);

/// Writes the file aside and puts it into place: what was there before stays until the new one is whole and safe on the
/// disk. The result is the reason of a failure, empty when all went well.
[[nodiscard]] QString writeFile(const QString& path, const QByteArray& contents);

/// The last steps of that, for whoever writes the file piece by piece. If the file is closed afterwards without an
/// error of its own, it is in its place and only the folder isn't safe.
[[nodiscard]] QString commitFile(QSaveFile& file);

/// The bytes of a text file.
[[nodiscard]] QByteArray contenutoTesto(const QStringList& lines);

inline constexpr qint64 fileMassimo = 512LL * 1024 * 1024; ///< bytes that are read of a file at most

struct FileLetto {
    QByteArray contenuto; ///< nothing of a file that isn't there
    QString errore;       ///< why what is there can't be read, as the end of a sentence
};

/// Reads a plain file of at most `fileMassimo` bytes. What has no end or waits for others is left alone: pipes,
/// devices, views of the kernel's that only look like files.
[[nodiscard]] FileLetto readFile(const QString& path);
[[nodiscard]] QString motivoNonNormale();

/// The lines of a text: UTF-8 where the bytes are valid UTF-8, else the code page. A line ends with CR LF or LF; CR
/// alone ends lines where there is no LF at all.
///
/// A line is decoded when its turn comes: the text takes no more memory than its bytes.
class RigheTesto {
  public:
    explicit RigheTesto(const QByteArray& contents);

    /// Characters of the whole text; in the code page as many as bytes.
    [[nodiscard]] qsizetype lunghezza() const { return length_; }
    /// Moves to the next line; false if there is none.
    bool prossima();
    /// The current line without its end, which holds until the next one, and its number from 1.
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
    QString text_; ///< the line, with room for longer ones
    QStringView line_;
    int number_ = 0;
};

} // namespace vanzer
