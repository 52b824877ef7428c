// SPDX-License-Identifier: MIT
// The tables of the archive. Each has a descriptor, a text that lists its fields. Making a table, checking it and the
// columns of exchange files all use the descriptor, so a new field is added there alone.
#pragma once

#include <array>
#include <vector>

#include <QString>

namespace vanzer::store {

enum class FieldKind { Text, YesNo, Binary, DateTime, Integer16, Single, Double };

struct FieldDef {
    QString name;
    FieldKind kind = FieldKind::Text;
    int size = 0; ///< greatest length of a text in characters; 0 for all other kinds

    friend bool operator==(const FieldDef&, const FieldDef&) = default;
};

/// Table numbers, the indexes of the three arrays below.
enum Tabella { MeteVanzer = 1, Itinerari, GuidaCitta, TipoGuida, MetaCorrente, Parametri };

inline constexpr int primaTabella = MeteVanzer;
inline constexpr int ultimaTabella = Parametri;

using Elenco = std::array<QString, 11>;

/// Names, descriptors and wanted indexes of the tables, by table number. 0 and 7 to 10 are empty.
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

/// Parses a descriptor. Entries are separated by commas without blanks. Each is a name and its kind in square brackets:
/// "T=n" text of at most n characters, "Y" yes/no, "B" binary, "D" date and time, "I" 16-bit integer, "S" single, "L"
/// double. Case of the letters is ignored. Parsing ends when fewer than four characters are left.
[[nodiscard]] std::vector<FieldDef> campiDescritti(const QString& descriptor);

} // namespace vanzer::store
