// SPDX-License-Identifier: MIT
// How records of the old files become records of the archive.
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <vector>

#include <QStringList>

#include "core/old_record.h"

namespace vanzer {

/// False for a deleted destination: without a code, without a name, or with a name that begins with "..".
[[nodiscard]] bool metaDaConvertire(const RecordVecchio& record);
/// The code of a converted destination, six digits.
[[nodiscard]] QString codiceConvertito(const RecordVecchio& record);
[[nodiscard]] QString nomeConvertito(const RecordVecchio& record);

/// The codes under which old destinations are stored. A destination gets a free code if its own belongs to another one
/// in the archive. Its itinerary file follows it.
///
/// A file lists these destinations until the conversion is complete, so that an interrupted one goes on with the same
/// codes. Each line has the old code, the new code, 1 if the itinerary file follows (else 0), and the name. They are
/// separated by tabs, in UTF-8.
class CodiciConvertiti {
  public:
    struct Spostata {
        QString vecchio;
        QString nuovo;
        bool conTappe = false;
        QString nome;
    };

    /// `stored` are the codes in the archive, `old` those in the old file.
    CodiciConvertiti(const QStringList& stored, const QStringList& old);

    void read(const QByteArray& contents);
    /// Drops the entries that `isStored` doesn't confirm. They were never stored.
    void keep(const std::function<bool(const Spostata&)>& isStored);
    [[nodiscard]] QByteArray contenuto() const;

    /// The code under which to store a destination. It is its own code, unless that is `taken` by another destination.
    /// Then it is the lowest code that is neither stored nor in the old file.
    [[nodiscard]] QString perMeta(const QString& old, const QString& name, bool taken);
    /// The code in the name of a stored destination's itinerary file. Empty if it has none.
    [[nodiscard]] QString perTappe(const QString& code) const;

    [[nodiscard]] const std::vector<Spostata>& spostate() const { return moved_; }

  private:
    std::set<int> taken_;
    QStringList before_; ///< the codes that were stored before the conversion
    std::vector<Spostata> moved_;
};
inline constexpr QStringView fileCodiciConvertiti = u"VanzMete.codici";

/// The texts of a leg for the fields of Itinerari.
struct TappaConvertita {
    QString Localita;
    QString Chilometri;
    QString NomeStrada; ///< the old place after its first "*", with a blank added
    QString TipoStrada;
    QString TempoSosta; ///< gg:HH:mm; a blank for none
    QString FineGiorno; ///< "1" or "0"
};
/// Converts a leg. No value if its place is blank or doesn't begin with a letter.
[[nodiscard]] std::optional<TappaConvertita> tappaConvertita(const RecordVecchio& record);

/// The texts of a guide entry.
struct VoceConvertita {
    QString Localita;
    QString Descrizione;
    QString CodiceGuida; ///< two digits
    QString TempoSosta;  ///< HH:mm
    QString FlagVisto;
};
[[nodiscard]] VoceConvertita voceConvertita(const RecordVecchio& record);

/// How many legs of an old itinerary to read, and how many of its records are not read.
struct TappeVecchie {
    int tappe = 0;
    int tralasciati = 0;
};
/// The head holds the count twice. If both texts agree, that many legs are read, else none. The records after these are
/// not read. A damaged head counts as one of them, and so does a head whose count is too high.
[[nodiscard]] TappeVecchie tappeDaLeggere(const FileVecchio& file);

/// The adjusted value of a destination's field. A text of two or four characters that amounts to 0 becomes the field's
/// default, if it has one.
[[nodiscard]] QString valoreAdeguato(QStringView field, int size, const QString& value);

} // namespace vanzer
