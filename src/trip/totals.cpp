// SPDX-License-Identifier: MIT
#include "trip/totals.h"

#include <utility>

#include <QStringList>

#include "core/text.h"

namespace vanzer {

int indiceStrada(QStringView letter) {
    if (letter.isEmpty())
        return 0;
    const auto at = tipiStrada.indexOf(letter, 0, Qt::CaseInsensitive);
    return at < 0 ? 3 : static_cast<int>(at);
}

double tempoTratta(int km, double speed) {
    return speed > 0 ? Int(km / speed * 100 + 0.5) : 0;
}

namespace {

float tempoTratto(const Tratto& leg, const Medie& speeds) {
    return static_cast<float>(leg.km == 0 ? 0 : tempoTratta(leg.km, speeds[static_cast<std::size_t>(leg.strada)]));
}

} // namespace

void TotaliTabella::recalculate(Righe rows, const Medie& speeds) {
    rows_ = std::move(rows);
    speeds_ = speeds;
    totals_ = {};
    negative_ = false;
    for (const std::optional<Tratto>& leg : rows_) {
        if (!leg)
            continue;
        adds(totals_, *leg, 1);
        negative_ = negative_ || leg->km < 0;
    }
}

bool TotaliTabella::change(int row, const std::optional<Tratto>& leg) {
    const auto at = static_cast<std::size_t>(row);
    TotaliItinerario changed = totals_;
    if (const std::optional<Tratto>& old = tratto(row))
        adds(changed, *old, -1);
    if (leg)
        adds(changed, *leg, 1);
    if (!exact(totals_) || !exact(changed) || (leg && leg->km < 0))
        return false;
    if (at >= rows_.size())
        rows_.resize(at + 1);
    rows_[at] = leg;
    totals_ = changed;
    return true;
}

const std::optional<Tratto>& TotaliTabella::tratto(int row) const {
    static const std::optional<Tratto> none;
    const auto at = static_cast<std::size_t>(row);
    return at < rows_.size() ? rows_[at] : none;
}

float TotaliTabella::tempo(int row) const {
    const std::optional<Tratto>& leg = tratto(row);
    return leg ? tempoTratto(*leg, speeds_) : 0;
}

void TotaliTabella::adds(TotaliItinerario& totals, const Tratto& leg, float sign) const {
    totals.traghetti += leg.traghetto ? static_cast<int>(sign) : 0;
    const auto type = static_cast<std::size_t>(leg.strada);
    for (const std::size_t i : {type, std::size_t{4}}) {
        totals.km[i] += sign * static_cast<float>(leg.km);
        totals.tempo[i] += sign * tempoTratto(leg, speeds_);
    }
}

/// Single precision adds and subtracts whole numbers without loss up to 2^24.
bool TotaliTabella::exact(const TotaliItinerario& totals) const {
    constexpr float largest = 16'777'216;
    return !negative_ && totals.km[4] < largest && totals.tempo[4] < largest;
}

int giorniMinimi(const QString& drivingTime) {
    return roundToInt(Val(Left(drivingTime, 2))) + (Mid(drivingTime, 4) > u"00:00" ? 1 : 0);
}

QStringList giorniOfferti(int least, bool anyKilometres) {
    QStringList days{QStringLiteral("000")};
    if (!anyKilometres)
        return days;
    for (int i = least; i <= least + 30; ++i)
        days << Zero(i, 3);
    for (int i = 30; i <= 200; i += 10)
        days << Zero(i, 3);
    return days;
}

} // namespace vanzer
