// SPDX-License-Identifier: MIT
// Files of fixed-length records, in which an earlier generation of the program kept destinations, itineraries and
// guide. Texts are in code page 1252, padded with blanks. docs/old_files.md describes the layout.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include <QByteArray>
#include <QString>

namespace vanzer {

struct CampoVecchio {
    const char16_t* nome;
    int larghezza;     ///< bytes
    bool siNo = false; ///< "1" for yes, "0" or a blank for no
};

/// The layout of one kind of old file. `lunghezza` is the length of a record in bytes; it may exceed the sum of the
/// fields.
struct FormatoVecchio {
    int lunghezza;
    std::span<const CampoVecchio> campi;

    /// Index of a field in RecordVecchio. There must be a field of that name.
    [[nodiscard]] std::size_t campo(QStringView name) const;
    /// Total width of the fields in bytes.
    [[nodiscard]] int larghezza() const;
};

/// One destination for each record, its fields in the order of MeteVanzer.
[[nodiscard]] const FormatoVecchio& vecchieMete();
/// The first record is a head: its fields Locali and Chilom both hold the number of legs. The legs follow.
[[nodiscard]] const FormatoVecchio& vecchieTappe();
/// One entry for each record.
[[nodiscard]] const FormatoVecchio& vecchiaGuida();

/// The texts of a record in the order of its fields, without the padding blanks. Yes/no is "1" or "0".
using RecordVecchio = std::vector<QString>;

class FileVecchio {
  public:
    FileVecchio(const FormatoVecchio& format, QByteArray contents);

    /// Number of records, including a last one that is cut off.
    [[nodiscard]] int numero() const;
    /// Record `n`, from 1. Nothing if it is damaged: it ends before its last field does, contains control characters,
    /// or a yes/no field is neither yes nor no.
    [[nodiscard]] std::optional<RecordVecchio> record(int n) const;

  private:
    const FormatoVecchio& format_;
    QByteArray contents_;
};

} // namespace vanzer
