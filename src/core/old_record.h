// The files of fixed-length records in which an earlier generation kept destinations, itineraries and guide: text in
// code page 1252, padded with blanks. Their layout stands in docs/old_files.md.
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

/// One kind of old file: the length of its records in bytes, which may exceed their fields, and the fields in order.
struct FormatoVecchio {
    int lunghezza;
    std::span<const CampoVecchio> campi;

    /// Where a field stands in the record's texts; the name is known to be one.
    [[nodiscard]] std::size_t campo(QStringView name) const;
    /// Bytes of the fields alone.
    [[nodiscard]] int larghezza() const;
};

/// One destination for each record, its fields in the order of MeteVanzer.
[[nodiscard]] const FormatoVecchio& vecchieMete();
/// The first record is a head, whose Locali and Chilom both hold the number of legs; the legs follow.
[[nodiscard]] const FormatoVecchio& vecchieTappe();
/// One entry for each record.
[[nodiscard]] const FormatoVecchio& vecchiaGuida();

/// The texts of a record without the blanks at their ends, in the order of its fields; yes/no is "1" or "0".
using RecordVecchio = std::vector<QString>;

class FileVecchio {
  public:
    FileVecchio(const FormatoVecchio& format, QByteArray contents);

    /// Records of the file, one that is cut off included.
    [[nodiscard]] int numero() const;
    /// The n-th record, from 1. Nothing if it is damaged: cut before the end of its fields, or with bytes that are no
    /// letters, or with a yes/no that is neither.
    [[nodiscard]] std::optional<RecordVecchio> record(int n) const;

  private:
    const FormatoVecchio& format_;
    QByteArray contents_;
};

} // namespace vanzer
