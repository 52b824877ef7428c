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

    /// Gives each chosen destination a code of its own: the one in the file if it is free here, else the next above the
    /// highest that is neither stored nor kept by another chosen one, as long as the old one. `stored` is in ascending
    /// order, `longest` the most characters of a code. When it fails, `colpevole` is the code that it failed on.
    [[nodiscard]] Esito assign(const QStringList& stored, const QStringList& chosen, int longest);
    [[nodiscard]] const QString& colpevole() const { return failed_; }

    /// For the next destination with that code; null if it wasn't chosen.
    [[nodiscard]] const QString* perMeta(QStringView old) const;
    /// The destination has come in under that code, which no other gets.
    void accept(QStringView old);
    /// The destination doesn't come in.
    void refuse(QStringView old);
    /// For its legs: of several destinations with one code those of the first. Null if none was chosen, or all were
    /// refused.
    [[nodiscard]] const QString* perTappe(QStringView old) const;

  private:
    struct Nuovi {
        std::deque<QString> daDare;
        QString dellaPrima; ///< of the first destination that came in
    };
    QHash<QString, Nuovi> codes_; ///< by the old code
    QString failed_;
};

} // namespace vanzer
