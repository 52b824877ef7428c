// SPDX-License-Identifier: MIT
// Imports the lines of an exchange file. A chosen destination comes in under its new code, with its legs, unless one of
// that name is in the archive. A guide entry comes in if it is new and the legs in the archive visit its place.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include <QHash>

#include "exchange/iei_codes.h"
#include "exchange/iei_file.h"
#include "exchange/place_patterns.h"

namespace vanzer {

/// The archive, as an import needs it.
class ArchivioImport {
  public:
    virtual ~ArchivioImport() = default;
    /// Adds a record to the table of the section. `values` has a text for each field; it receives the texts as they
    /// were stored.
    virtual void add(int section, std::vector<QString>& values) = 0;
    /// The names of all destinations. luoghiTappe: the places of all legs. vociGuida: all entries that have both a
    /// place and a description.
    [[nodiscard]] virtual std::vector<QString> nomiMete() = 0;
    [[nodiscard]] virtual std::vector<QString> luoghiTappe() = 0;
    struct Voce {
        QString localita;
        QString descrizione;
    };
    [[nodiscard]] virtual std::vector<Voce> vociGuida() = 0;
};

struct ContatoriImport {
    int meteInserite = 0;
    int tappeInserite = 0;
    int vociInserite = 0;
    int meteScartate = 0;
    int vociScartate = 0;
};

/// The destinations in the archive.
class MetePresenti {
  public:
    void add(const QString& name);
    /// Whether there is one of that name. The part before the bracket must be equal, and a query for the name must find
    /// it.
    [[nodiscard]] bool trova(const QString& name) const;

  private:
    QHash<QString, std::vector<std::string>> names_; ///< UTF-8, by the part of the name before the bracket
};

/// The descriptions of one place, UTF-8 in lower case. Tells whether one of them fits a pattern.
class Descrizioni {
  public:
    void add(const std::string& text);
    [[nodiscard]] bool trova(const std::string& pattern);

  private:
    /// The positions of a pattern's own characters, which patterns such as "?ab" and "?cd" share. Texts are grouped by
    /// their characters at these positions.
    struct Forma {
        std::vector<bool> proprie; ///< true for a position with an own character
        bool intera = true;        ///< false if the pattern ends in "*" and fits longer texts too
        std::unordered_multimap<std::size_t, const std::string*> testi;

        /// The key of the text's characters at these positions. No value if the text is too short or, for a whole form,
        /// too long.
        [[nodiscard]] std::optional<std::size_t> chiave(const std::string& text) const;
        void add(const std::string& text);
    };

    [[nodiscard]] Forma* forma(const std::string& pattern);

    std::set<std::string> texts_;
    std::vector<Forma> forms_; ///< made on demand, when many texts begin alike
};

/// The guide entries in the archive, by place and description.
class VociPresenti {
  public:
    void add(const QString& place, const QString& description);
    /// Whether there is an entry of such a description at a place that fits the pattern of `place`.
    [[nodiscard]] bool trova(const QString& place, const QString& description);

  private:
    LuoghiPerModello places_;
    std::vector<Descrizioni> descriptions_; ///< by place
};

class Importazione {
  public:
    Importazione(CampiIei fields, CodiciMete codes, ArchivioImport& archive)
        : reader_(std::move(fields)), codes_(std::move(codes)), archive_(archive) {}

    /// Reads a line. False for a head line without a key field: the file is damaged.
    [[nodiscard]] bool riga(QStringView line);
    [[nodiscard]] int sezione() const { return reader_.sezione(); }
    [[nodiscard]] const ContatoriImport& contatori() const { return counters_; }

  private:
    [[nodiscard]] bool testa();
    void meta();
    void tappa();
    void voce();
    void add(const QString* newCode);

    LettoreIei reader_;
    CodiciMete codes_;
    ArchivioImport& archive_;
    ContatoriImport counters_;
    int code_ = -1; ///< the field of the destination's code in the current section
    int place_ = -1;
    int description_ = -1;
    std::vector<QString> values_;
    std::optional<MetePresenti> destinations_;
    std::optional<LuoghiPerModello> legs_; ///< filled at the first line of the guide
    std::optional<VociPresenti> guide_;
};

} // namespace vanzer
