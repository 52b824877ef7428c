// The guide's entries of one place after the other, through one kept statement: the calculation asks for thousands of
// places in a row.
#pragma once

#include <vector>

#include <QString>

#include "store/archive.h"

namespace vanzer::store {

struct VoceGuida {
    qint64 rowid = 0;
    int codice = 0; ///< category
    QString gruppo;
    QString descrizione;
    QString tempoSosta;
};

class LettoreGuida {
  public:
    explicit LettoreGuida(const Archive& archive);

    /// The entries of exactly this place, case ignored: by category, the longest first, then by group.
    [[nodiscard]] std::vector<VoceGuida> leggeLuogo(const QString& place);

  private:
    StatementLease statement_;
};

} // namespace vanzer::store
