// What becomes of the lines of an exchange file: destinations that were chosen come in under their new codes unless one
// of that name is here, their legs with them, and of the guide the entries for places that the legs here visit, as far
// as they are new.
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

/// What an import asks of the archive that it comes into.
class ArchivioImport {
  public:
    virtual ~ArchivioImport() = default;
    /// A record for the table of the section, a text for each of its fields; the texts become what is stored of them.
    virtual void add(int section, std::vector<QString>& values) = 0;
    /// The names of all destinations, the places of all legs, and place and description of all entries of the guide
    /// that have both.
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

/// Which destinations there are.
class MetePresenti {
  public:
    void add(const QString& name);
    /// One of the same name: up to the bracket, and as a query for the name finds it.
    [[nodiscard]] bool trova(const QString& name) const;

  private:
    QHash<QString, std::vector<std::string>> names_; ///< UTF-8, by what comes before the bracket
};

/// Descriptions of one place, UTF-8 with case put away, and whether a pattern fits one of them.
class Descrizioni {
  public:
    void add(const std::string& text);
    [[nodiscard]] bool trova(const std::string& pattern);

  private:
    /// The form of patterns such as "?ab" and "?ab*": where their own characters stand. Texts of the same characters
    /// there lie together.
    struct Forma {
        std::vector<bool> proprie; ///< by character
        bool intera = true;        ///< no text is longer
        std::unordered_multimap<std::size_t, const std::string*> testi;

        /// Of the text's characters there; nothing if it has fewer or, for a whole form, more.
        [[nodiscard]] std::optional<std::size_t> chiave(const std::string& text) const;
        void add(const std::string& text);
    };

    [[nodiscard]] Forma* forma(const std::string& pattern);

    std::set<std::string> texts_;
    std::vector<Forma> forms_; ///< those that were asked for where many texts begin alike
};

/// Which descriptions the guide has for which places.
class VociPresenti {
  public:
    void add(const QString& place, const QString& description);
    /// An entry like the description at a place of the form of `place`.
    [[nodiscard]] bool trova(const QString& place, const QString& description);

  private:
    LuoghiPerModello places_;
    std::vector<Descrizioni> descriptions_; ///< by place
};

class Importazione {
  public:
    Importazione(CampiIei fields, CodiciMete codes, ArchivioImport& archive)
        : reader_(std::move(fields)), codes_(std::move(codes)), archive_(archive) {}

    /// False for a head line without the field by which its records are told apart: the file is damaged.
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
    int code_ = -1; ///< field of the destination's code in the section at hand
    int place_ = -1;
    int description_ = -1;
    std::vector<QString> values_;
    std::optional<MetePresenti> destinations_;
    std::optional<LuoghiPerModello> legs_; ///< from the first line of the guide on
    std::optional<VociPresenti> guide_;
};

} // namespace vanzer
