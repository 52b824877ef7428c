// Marks of use of the guide's entries: while an itinerary is loaded, stored or prepared each entry counts once, at the
// first passage through its place. The marks are kept in memory during one run and written by set at its end.
#pragma once

#include <unordered_set>
#include <vector>

#include "store/archive.h"

namespace vanzer {

struct VoceGuida {
    qint64 rowid = 0;
    QString localita;
    int codice = 0; ///< category
    QString gruppo;
    QString descrizione;
    QString tempoSosta;
};

class SegniGuida {
  public:
    /// Begins a run: the marks in the archive have just been cleared.
    explicit SegniGuida(store::Archive& archive);

    /// The entries of exactly this place, case ignored, that weren't used yet; they count as used from here on.
    [[nodiscard]] std::vector<VoceGuida> usaLuogo(const QString& place, const std::vector<store::Order>& order = {});
    /// The entries whose place matches the pattern, used in the same way.
    [[nodiscard]] std::vector<VoceGuida> usaModello(const QString& pattern);
    /// Writes the marks of the run to the archive.
    void scrive();

  private:
    [[nodiscard]] std::vector<VoceGuida> usa(const store::Query& query);

    store::Archive& archive_;
    std::unordered_set<qint64> used_;
};

/// Time of an entry in hundredths: hh:mm, or whole visiting days "G1" to "G8" of `visitingDay` hundredths each plus the
/// minutes.
[[nodiscard]] float tempoVoce(const QString& tempoSosta, float visitingDay);

} // namespace vanzer
