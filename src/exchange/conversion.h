// What the records of the old files become in the archive.
#pragma once

#include <optional>

#include "store/old_files.h"

namespace vanzer {

/// False for a destination that had been deleted: no code, no name, or a name that begins with "..".
[[nodiscard]] bool metaDaConvertire(const store::RecordVecchio& record);
/// The code of a converted destination, six digits.
[[nodiscard]] QString codiceConvertito(const store::RecordVecchio& record);

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
[[nodiscard]] std::optional<TappaConvertita> tappaConvertita(const store::RecordVecchio& record);

/// An entry of the guide.
struct VoceConvertita {
    QString Localita;
    QString Descrizione;
    QString CodiceGuida; ///< two digits
    QString TempoSosta;  ///< HH:mm
    QString FlagVisto;
};
[[nodiscard]] VoceConvertita voceConvertita(const store::RecordVecchio& record);

/// Which legs of an old itinerary are read, and how many of its records are left behind.
struct TappeVecchie {
    int tappe = 0;
    int tralasciati = 0;
};
/// The head's count holds if both its texts agree on it, else the itinerary counts as empty. Legs behind the count are
/// left behind; a head that is damaged, or tells more legs than there are, counts as one left behind itself.
[[nodiscard]] TappeVecchie tappeDaLeggere(const store::FileVecchio& file);

/// The value of a destination's field after the adjustment: where a text of two or four characters amounts to 0 the
/// default of that field, if it has one.
[[nodiscard]] QString valoreAdeguato(QStringView field, int size, const QString& value);

} // namespace vanzer
