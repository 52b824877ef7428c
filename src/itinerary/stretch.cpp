// SPDX-License-Identifier: MIT
#include "itinerary/stretch.h"

#include <algorithm>

#include "core/text.h"

namespace vanzer {

namespace {

/// The row that an end names. A typed number may be huge; the result is then a row after every table.
int rowOf(const QString& end) {
    constexpr double behindAll = 999'999;
    return roundToInt(std::clamp(Val(end.section(u' ', 0, 0)), 0.0, behindAll));
}

} // namespace

QString testoEstremo(int riga, const QString& numero, const QString& tipoStrada, const QString& luogo) {
    constexpr int digits = 4;
    const QString number = numero.isEmpty() ? QString::number(riga) : numero;
    return number.rightJustified(digits, u'0') + u' ' + tipoStrada + u' ' + luogo;
}

void TrattoScelto::choose(bool comePrima, const QString& estremo) {
    QString& chosen = comePrima ? prima : ultima;
    QString& other = comePrima ? ultima : prima;
    chosen = estremo;
    if (other.isEmpty() || daRiga() > aRiga())
        other = estremo;
}

int TrattoScelto::daRiga() const {
    return rowOf(prima);
}

int TrattoScelto::aRiga() const {
    return rowOf(ultima);
}

int TrattoScelto::tappe() const {
    return isChosen() ? Maggiore(aRiga() - daRiga() + 1, 0) : 0;
}

QString conModifiche(QString mappa, int da, int a) {
    da = std::max(da, 1);
    mappa = mappa.leftJustified(a, u'0');
    return mappa.replace(da - 1, a - da + 1, QString(a - da + 1, u'1'));
}

} // namespace vanzer
