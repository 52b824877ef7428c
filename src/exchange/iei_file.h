// SPDX-License-Identifier: MIT
// The lines of the exchange file of destinations (.iei).
//
// The file is a text of up to three sections, in this order: destinations, legs, guide. A section begins with a head
// line, which has the field names of its table. A line for each record follows, with the trimmed texts of the fields.
// The section's separator stands after every name and every text. The sections are told apart by their separators
// alone:
//
//     MeteVanzer    ÿ (byte 255)    CodiceMetaÿLocalitaÿ...     000001ÿROMAÿ...
//     Itinerari     þ (byte 254)    CodiceMetaþSequenzaþ...     000001þ0001þ...
//     GuidaCitta    ý (byte 253)    LocalitaýCodiceGuidaý...    Romaý02ý...
//
// A file of another version can be read, since the columns are named. Columns that the table lacks are skipped, and
// fields that the file lacks become blank. Line breaks and double quotes within a text aren't protected. The letters
// that serve as separators, and their capitals, are written as their base letters. So a place in the guide still equals
// its leg, which is in capitals.
#pragma once

#include <array>
#include <vector>

#include <QByteArray>
#include <QSet>
#include <QString>
#include <QStringList>

#include "core/code_page.h"

namespace vanzer {

/// The number of a section is the number of its table.
enum SezioneIei { sezioneMete = 1, sezioneTappe, sezioneGuida, nessunaSezione = 99 };
inline constexpr int primaSezione = sezioneMete;
inline constexpr int ultimaSezione = sezioneGuida;

/// The field names of the three tables by section, from 1. Element 0 is empty.
using CampiIei = std::array<QStringList, ultimaSezione + 1>;

[[nodiscard]] QChar separatoreIei(int section);

/// The section whose separator the line holds; if it holds several, the lowest. `before` if it holds none.
[[nodiscard]] int sezioneDellaRiga(QStringView line, int before);

/// Reads a file line by line.
class LettoreIei {
  public:
    enum class Riga {
        Estranea, ///< a line before the first section
        Testa,    ///< the first line of a section
        Record
    };

    explicit LettoreIei(CampiIei fields) : fields_(std::move(fields)) {}

    /// Reads a line and tells what it is. The text must stay valid until the next line is read.
    Riga read(QStringView line);
    /// Reads a line as the head line, or as a record, of a section.
    void readHead(QStringView line, int section);
    void readRecord(QStringView line);

    /// The section of the current line.
    [[nodiscard]] int sezione() const { return section_; }
    [[nodiscard]] const QStringList& campi() const { return fields_[static_cast<std::size_t>(section_)]; }
    /// Position of a field in the current section, case ignored. -1 if there is none.
    [[nodiscard]] int campo(QStringView name) const;

    /// Whether the last head line names the field.
    [[nodiscard]] bool hasColumn(int field) const;
    /// The field's text in the current line, trimmed. Empty if the file has no such column.
    [[nodiscard]] QStringView colonna(int field);
    /// The field's text as the archive stores it: a blank if it is empty.
    [[nodiscard]] QString valore(int field);

  private:
    void divide();
    void tieColumns();

    CampiIei fields_;
    int section_ = nessunaSezione;
    QStringView line_;
    QString cleaned_; ///< the line without quotes and control characters, if it had any
    bool divided_ = false;
    std::vector<QStringView> columns_;
    std::vector<int> columnOf_; ///< by field: the number of its column from 1, or 0 for none
};

/// A text of which some letters were replaced in the file.
struct TestoSostituito {
    QString testo;
    std::vector<LetteraSostituita> lettere;
};

/// Writes a file.
class ScrittoreIei {
  public:
    void testa(int section, const QStringList& names);
    /// Adds a text to the current record line.
    void testo(int section, const QString& text);
    void fineRiga() { contents_ += "\r\n"; }

    [[nodiscard]] const QByteArray& contenuto() const { return contents_; }
    /// The texts of which letters were replaced, each once.
    [[nodiscard]] const std::vector<TestoSostituito>& sostituiti() const { return replaced_; }

  private:
    QByteArray contents_;
    std::vector<TestoSostituito> replaced_;
    QSet<QString> told_;
};

} // namespace vanzer
