// SPDX-License-Identifier: MIT
#include "core/time_values.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>

#include "core/text.h"

namespace vanzer {

float ghmStringa2Centesimi(const QString& text, float dayUnit) {
    std::array<QChar, 8> padded;
    padded.fill(u'0');
    const QStringView end = QStringView(text).last(std::min<qsizetype>(text.size(), 8));
    std::ranges::copy(end, padded.end() - end.size());
    const QStringView t(padded);
    const double gg = Val(t.left(2));
    const double hh = Val(t.mid(3, 2));
    const double mm = Val(t.right(2));
    return static_cast<float>(gg * static_cast<double>(dayUnit) + hh * 100 + Int(mm * 100 / 60 + 0.5));
}

Ghm splitTime(float centesimi, float dayUnit) {
    const auto c = static_cast<double>(centesimi);
    const auto unit = static_cast<double>(dayUnit);
    const double gg = unit == 0 ? 0 : Int(c / unit);
    const double hh = Int((c - gg * unit) / 100);
    return {gg, hh, Int((c - (gg * unit + hh * 100)) * 60 / 100 + 0.5)};
}

float recompose(const Ghm& ghm, float dayUnit) {
    const double gg = ghm.gg > 99 ? std::fmod(ghm.gg, 100) : ghm.gg;
    return static_cast<float>(gg * static_cast<double>(dayUnit) + ghm.hh * 100 + Int(ghm.mm * 100 / 60 + 0.5));
}

namespace {

bool inTwoDigits(const Ghm& time) {
    const auto fits = [](double part) { return part >= 0 && part < 100; };
    return fits(time.gg) && fits(time.hh) && fits(time.mm);
}

QString inDigits(std::initializer_list<double> parts) {
    QString text;
    text.reserve(8);
    for (const double part : parts) {
        if (!text.isEmpty())
            text += u':';
        const int n = static_cast<int>(part);
        text += QChar(static_cast<char16_t>(u'0' + n / 10));
        text += QChar(static_cast<char16_t>(u'0' + n % 10));
    }
    return text;
}

} // namespace

QString ghmCentesimi2Stringa(float centesimi, float dayUnit) {
    const Ghm time = splitTime(centesimi, dayUnit);
    if (time.gg == 0 && time.hh == 0 && time.mm == 0)
        return {};
    if (inTwoDigits(time))
        return inDigits({time.gg, time.hh, time.mm});
    const QString text = Zero(time.gg, 2) + u':' + Zero(time.hh, 2) + u':' + Zero(time.mm, 2);
    return text == u"00:00:00" ? QString() : text;
}

QString ghmSenzaGiorni(float centesimi, float dayUnit) {
    const Ghm time = splitTime(centesimi, dayUnit);
    if (!inTwoDigits(time))
        return Mid(ghmCentesimi2Stringa(centesimi, dayUnit), 4);
    if (time.gg == 0 && time.hh == 0 && time.mm == 0)
        return {};
    return inDigits({time.hh, time.mm});
}

Gma Data2Gma(const QString& data) {
    const QStringView d(data);
    return {roundToInt(Val(d.mid(0, 2))), roundToInt(Val(d.mid(2, 2))), roundToInt(Val(d.mid(4)))};
}

QString Gma2Data(const Gma& gma) {
    return Zero(gma.giorno, 2) + Zero(gma.mese, 2) + Zero(gma.anno, 4);
}

float Data2Giul(const QString& data) {
    const Gma d = Data2Gma(data);
    double giuliano = d.giorno + Int(30.57 * d.mese) + Int(365.25 * d.anno - 395.25);
    if (d.mese > 2)
        giuliano -= d.anno % 4 == 0 ? 1 : 2;
    return static_cast<float>(giuliano);
}

Gma Giul2Data(float giuliano) {
    const auto j = static_cast<double>(giuliano);
    double anno = Int(j / 365.26) + 1;
    double d = j - Int(anno * 365.25 - 395.25);
    const int k = Int(anno / 4) == anno / 4 ? 1 : 2;
    if (d > 91 - k)
        d += k;
    double mese = Int(d / 30.57);
    const double giorno = d - Int(mese * 30.57);
    if (mese > 12) {
        mese -= 12;
        anno += 1;
    }
    return {roundToInt(giorno), roundToInt(mese), roundToInt(anno)};
}

QString Giu2Datas(float giuliano) {
    return Gma2Data(Giul2Data(giuliano));
}

QString Data2Data(const QString& data) {
    return Mid(data, 1, 2) + u'/' + Mid(data, 3, 2) + u'/' + Mid(data, 5);
}

QString DataChan(const QString& data) {
    return Mid(data, 5) + Mid(data, 3, 2) + Mid(data, 1, 2);
}

QString GiornoSettimana(const QString& data) {
    if (data.size() != 8)
        return {};
    const int day = roundToInt(static_cast<double>(Data2Giul(data))) % 7;
    return day < 0 ? QString() : Mid(QStringLiteral("SabDomLunMarMerGioVen"), day * 3 + 1, 3);
}

int GiorniMese(int anno, int mese) {
    switch (mese) {
    case 0:
    case 1:
    case 3:
    case 5:
    case 7:
    case 8:
    case 10:
    case 12: return 31;
    case 4:
    case 6:
    case 9:
    case 11: return 30;
    default: break;
    }
    const bool leap = anno % 4 == 0 && (anno % 100 != 0 || anno % 400 == 0);
    return mese == 2 && leap ? 29 : 28;
}

} // namespace vanzer
