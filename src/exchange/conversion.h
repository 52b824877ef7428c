// What the records of the old files become in the archive.
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <vector>

#include <QStringList>

#include "core/old_record.h"

namespace vanzer {

/// False for a destination that had been deleted: no code, no name, or a name that begins with "..".
[[nodiscard]] bool metaDaConvertire(const RecordVecchio& record);
/// The code of a converted destination, six digits.
[[nodiscard]] QString codiceConvertito(const RecordVecchio& record);
[[nodiscard]] QString nomeConvertito(const RecordVecchio& record);

/// Destinations whose code belongs to another one here come in under a free code, and their itinerary file with them.
///
/// Where each went is kept in a file until the conversion is whole, a line each: the old code, the new one, 1 where the
/// itinerary file comes along (else 0), the name; parted by tabs, in UTF-8. So a conversion that was broken off goes on
/// with the same codes.
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
    /// Those that `isStored` doesn't confirm are forgotten: they were never stored.
    void keep(const std::function<bool(const Spostata&)>& isStored);
    [[nodiscard]] QByteArray contenuto() const;

    /// The code that a destination comes in under: its own, unless that is `taken` by another one; then the lowest that
    /// is neither stored nor in the old file.
    [[nodiscard]] QString perMeta(const QString& old, const QString& name, bool taken);
    /// The code in the name of the itinerary file of a stored destination; empty if it has none.
    [[nodiscard]] QString perTappe(const QString& code) const;

    [[nodiscard]] const std::vector<Spostata>& spostate() const { return moved_; }

  private:
    std::set<int> taken_;
    QStringList before_; ///< the codes that were stored before
    std::vector<Spostata> moved_;
};
inline constexpr QStringView fileCodiciConvertiti = u"VanzMete.codici";

/// A leg: the texts of the fields of Itinerari that it fills.
struct TappaConvertita {
    QString Localita;
    QString Chilometri;
    QString NomeStrada; ///< what stands behind the first "*" of the old place, with a blank behind it
    QString TipoStrada;
    QString TempoSosta; ///< gg:HH:mm; a blank for none
    QString FineGiorno; ///< "1" or "0"
};
/// Nothing for a record whose place is blank or doesn't begin with a letter.
[[nodiscard]] std::optional<TappaConvertita> tappaConvertita(const RecordVecchio& record);

/// An entry of the guide.
struct VoceConvertita {
    QString Localita;
    QString Descrizione;
    QString CodiceGuida; ///< two digits
    QString TempoSosta;  ///< HH:mm
    QString FlagVisto;
};
[[nodiscard]] VoceConvertita voceConvertita(const RecordVecchio& record);

/// Which legs of an old itinerary are read, and how many of its records are left behind.
struct TappeVecchie {
    int tappe = 0;
    int tralasciati = 0;
};
/// The head's count holds if both its texts agree on it, else the itinerary counts as empty. Legs behind the count are
/// left behind; a head that is damaged, or tells more legs than there are, counts as one left behind itself.
[[nodiscard]] TappeVecchie tappeDaLeggere(const FileVecchio& file);

/// The value of a destination's field after the adjustment: where a text of two or four characters amounts to 0 the
/// default of that field, if it has one.
[[nodiscard]] QString valoreAdeguato(QStringView field, int size, const QString& value);

} // namespace vanzer
