// The codes of destinations that come in: the one in the file and the one that it gets here.
#pragma once

#include <deque>
#include <optional>

#include <QHash>
#include <QString>
#include <QStringList>

namespace vanzer {

class CodiciMete {
  public:
    enum class Esito { Assegnati, CodiceTroppoLungo, CodiciEsauriti };

    /// Gives each chosen destination its code: the one in the file if it is free here, else the next above the highest
    /// that is neither stored nor kept by another chosen one, as long as the old one. `stored` is in ascending order,
    /// `longest` the most characters of a code. When it fails, `colpevole` is the code that it failed on.
    [[nodiscard]] Esito assegna(const QStringList& stored, const QStringList& chosen, int longest);
    [[nodiscard]] const QString& colpevole() const { return failed_; }

    /// Null for a destination that wasn't chosen, or was refused.
    [[nodiscard]] const QString* nuovo(QStringView old) const;
    /// The destination doesn't come in.
    void rifiuta(QStringView old);

  private:
    QHash<QString, std::deque<QString>> codes_; ///< by the old code; of several destinations with one code the first
    QString failed_;
};

} // namespace vanzer
