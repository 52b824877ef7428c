// The exchange file of destinations (.iei): what its lines are, apart from what is done with them.
//
// It is a text of up to three sections, in this order: destinations, legs, guide. Each begins with a head line, the
// names of its table's fields, and goes on with a line for each record, the fields' texts trimmed. Behind every name
// and every text stands the section's separator, which alone tells the sections apart:
//
//     MeteVanzer    ÿ (byte 255)    CodiceMetaÿLocalitaÿ...     000001ÿROMAÿ...
//     Itinerari     þ (byte 254)    CodiceMetaþSequenzaþ...     000001þ0001þ...
//     GuidaCitta    ý (byte 253)    LocalitaýCodiceGuidaý...    Romaý02ý...
//
// Since the columns are named, a file of another version finds its fields: columns that the table lacks are passed
// over, fields that the file lacks are blank. Nothing protects a line break or a double quote within a text. The
// letters that part the fields, and their capitals, go out as their base letters, so that a place of the guide and its
// leg, which is written in capitals, still meet.
#pragma once

#include <array>
#include <vector>

#include <QByteArray>
#include <QSet>
#include <QString>
#include <QStringList>

#include "core/code_page.h"

namespace vanzer {

/// The number of a section is that of its table.
enum SezioneIei { sezioneMete = 1, sezioneTappe, sezioneGuida, nessunaSezione = 99 };
inline constexpr int primaSezione = sezioneMete;
inline constexpr int ultimaSezione = sezioneGuida;

/// The names of the fields of the three tables, by section from 1; element 0 is empty.
using CampiIei = std::array<QStringList, ultimaSezione + 1>;

[[nodiscard]] QChar separatoreIei(int section);

/// The section whose separator a line holds, the lowest of several; `before` if it holds none.
[[nodiscard]] int sezioneDellaRiga(QStringView line, int before);

/// Reads a file line by line.
class LettoreIei {
  public:
    enum class Riga {
        Estranea, ///< before the first section
        Testa,    ///< the first line behind one of another section
        Record
    };

    explicit LettoreIei(CampiIei fields) : fields_(std::move(fields)) {}

    /// What a line is, by the lines before it. It must stay as it is until the next one is read.
    Riga read(QStringView line);
    /// Takes a line as a head line, or as a record line, of a section.
    void readHead(QStringView line, int section);
    void readRecord(QStringView line);

    /// Of the current line.
    [[nodiscard]] int sezione() const { return section_; }
    [[nodiscard]] const QStringList& campi() const { return fields_[static_cast<std::size_t>(section_)]; }
    /// Position of a field of the current section, case ignored; -1 if there is none.
    [[nodiscard]] int campo(QStringView name) const;

    /// The last head line names the field.
    [[nodiscard]] bool hasColumn(int field) const;
    /// The text of a field's column on the current line, trimmed; empty where there is no such column.
    [[nodiscard]] QStringView colonna(int field);
    /// The text as it is stored: a blank in place of an empty one.
    [[nodiscard]] QString valore(int field);

  private:
    void divide();
    void tieColumns();

    CampiIei fields_;
    int section_ = nessunaSezione;
    QStringView line_;
    QString cleaned_; ///< the line without what is left out, if it holds such characters
    bool divided_ = false;
    std::vector<QStringView> columns_;
    std::vector<int> columnOf_; ///< by field: number of its column from 1, 0 for none
};

/// A text that doesn't go into the file as it is.
struct TestoSostituito {
    QString testo;
    std::vector<LetteraSostituita> lettere;
};

/// Puts a file together.
class ScrittoreIei {
  public:
    void testa(int section, const QStringList& names);
    /// A text of the record line at hand.
    void testo(int section, const QString& text);
    void fineRiga() { contents_ += "\r\n"; }

    [[nodiscard]] const QByteArray& contenuto() const { return contents_; }
    /// The texts with letters that don't go into the file, each once.
    [[nodiscard]] const std::vector<TestoSostituito>& sostituiti() const { return replaced_; }

  private:
    QByteArray contents_;
    std::vector<TestoSostituito> replaced_;
    QSet<QString> told_;
};

} // namespace vanzer
