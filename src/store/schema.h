// The tables of the archive. They are held as text: a table's descriptor is the one authority for its fields, for its
// making, its check and the columns of the exchange files. A new field exists as soon as it stands in its descriptor.
#pragma once

#include <array>
#include <vector>

#include <QString>

namespace vanzer::store {

enum class FieldKind { Text, YesNo, Binary, DateTime, Integer16, Single, Double };

struct FieldDef {
    QString name;
    FieldKind kind = FieldKind::Text;
    int size = 0; ///< most characters of a text; 0 for every other kind

    friend bool operator==(const FieldDef&, const FieldDef&) = default;
};

/// Numbers of the tables in the three arrays below.
enum Tabella { MeteVanzer = 1, Itinerari, GuidaCitta, TipoGuida, MetaCorrente, Parametri };

inline constexpr int primaTabella = MeteVanzer;
inline constexpr int ultimaTabella = Parametri;

using Elenco = std::array<QString, 11>;

/// Names, descriptors and wanted indexes of the tables, by number; 0 and 7 to 10 are empty.
[[nodiscard]] const Elenco& TabelleNomi();
[[nodiscard]] const Elenco& TabelleCampi();
[[nodiscard]] const Elenco& TabelleIndici();
[[nodiscard]] inline const QString& TabelleNomi(int i) {
    return TabelleNomi().at(static_cast<std::size_t>(i));
}
[[nodiscard]] inline const QString& TabelleCampi(int i) {
    return TabelleCampi().at(static_cast<std::size_t>(i));
}
[[nodiscard]] inline const QString& TabelleIndici(int i) {
    return TabelleIndici().at(static_cast<std::size_t>(i));
}

/// The fields of a descriptor, in its order. Entries are joined by commas without blanks, each a name and, in square
/// brackets, its kind: "T=n" text of at most n characters, "Y" yes/no, "B" binary, "D" date and time, "I" 16-bit
/// integer, "S" single, "L" double; the letters in either case. Reading ends where less than four characters are left.
[[nodiscard]] std::vector<FieldDef> campiDescritti(const QString& descriptor);

} // namespace vanzer::store
