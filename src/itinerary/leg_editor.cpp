// SPDX-License-Identifier: MIT
#include "itinerary/leg_editor.h"

#include "core/place_name.h"
#include "core/text.h"
#include "trip/totals.h"

namespace vanzer {

using namespace Qt::StringLiterals;

namespace {

/// Below so many running kilometres a typed number can't be told from a distance, so it isn't taken for a total.
constexpr double sogliaProgressivi = 100;

Rifiuto refusal(const TappaDigitata& typed, const QString& km, const QString& stop) {
    const bool tooFar = Val(km) > 999;
    const bool noPlace = Trim(typed.luogo).isEmpty();
    if (tooFar || noPlace)
        return tooFar && noPlace ? Rifiuto::KmELuogo : tooFar ? Rifiuto::KmTroppi : Rifiuto::LuogoMancante;
    const bool nothing = Val(km) == 0 && stop.isEmpty() && !typed.fineGiornata && !contains(typed.strada, u"TRAGH");
    return nothing && typed.riga >= 2 ? Rifiuto::NienteDaSegnare : Rifiuto::Nessuno;
}

} // namespace

SostaConFine splitStop(const QString& cell) {
    if (cell.isEmpty())
        return {senzaSosta.toString()};
    return cell.startsWith(u'*') ? SostaConFine{Mid(cell, 2), true} : SostaConFine{cell};
}

std::optional<int> tipoStrada(const QString& cell) {
    const QString letter = Trim(cell);
    const int at = posizione(tipiStrada, letter);
    return letter.size() == 1 && at > 0 ? std::optional(at - 1) : std::nullopt;
}

QString senzaMarca(const QString& cell, QStringView mark) {
    return contains(cell, mark) ? Trim(QString(cell).remove(mark.toString(), Qt::CaseInsensitive)) : Trim(cell);
}

bool kmProgressivi(double kmPrecedenti) {
    return kmPrecedenti > sogliaProgressivi;
}

TappaControllata checkLeg(const TappaDigitata& typed) {
    TappaControllata row;
    const double km = Val(typed.km);
    row.totale = typed.kmComeTotale && typed.riga > 2 && kmProgressivi(typed.kmPrecedenti) && km > typed.kmPrecedenti;
    row.km = row.totale ? testoNumero(km - typed.kmPrecedenti) : typed.km;
    const QString stop = typed.sosta == senzaSosta ? QString() : typed.sosta;
    row.rifiuto = refusal(typed, row.km, stop);
    row.luogo = typed.luogo;
    if (typed.primaMeta)
        row.luogo += u" [Start]"_s;
    if (typed.ultimaMeta)
        row.luogo += u" [End]"_s;
    row.lettera = Val(row.km) == 0 ? QString() : typed.lettera;
    row.sosta = typed.fineGiornata ? u'*' + stop : stop;
    return row;
}

} // namespace vanzer
