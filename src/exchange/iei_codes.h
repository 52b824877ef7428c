// SPDX-License-Identifier: MIT
// The codes of imported destinations: the code in the file, and the code in this archive.
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

    /// Gives each chosen destination a code of its own. It keeps the code of the file if that is free here. Otherwise
    /// it gets the next free number above the highest stored code, with as many characters as the old code. `stored` is
    /// in ascending order; `longest` is the most characters of a code. On failure, `colpevole` is the code at fault.
    [[nodiscard]] Esito assign(const QStringList& stored, const QStringList& chosen, int longest);
    [[nodiscard]] const QString& colpevole() const { return failed_; }

    /// The new code of the next destination with that old code. Null if it wasn't chosen.
    [[nodiscard]] const QString* perMeta(QStringView old) const;
    /// Notes that this destination was stored. No other destination gets its code.
    void accept(QStringView old);
    /// Notes that this destination isn't stored.
    void refuse(QStringView old);
    /// The new code for legs with that old code. If several destinations have it, this is the code of the first one
    /// stored. Null if none was chosen, or all were refused.
    [[nodiscard]] const QString* perTappe(QStringView old) const;

  private:
    struct Nuovi {
        std::deque<QString> daDare;
        QString dellaPrima; ///< code of the first destination that was stored
    };
    QHash<QString, Nuovi> codes_; ///< by the old code
    QString failed_;
};

} // namespace vanzer
