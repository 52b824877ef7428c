// SPDX-License-Identifier: MIT
#include "exchange/conversion.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/text.h"
#include "trip/leg_table.h"

namespace vanzer {

namespace {

const QString& text(const RecordVecchio& record, const FormatoVecchio& format, QStringView field) {
    return record[format.campo(field)];
}

/// Changes ggHHmm to gg:HH:mm. A blank for no stop.
QString sosta(const QString& digits) {
    if (Val(digits) == 0)
        return QStringLiteral(" ");
    return Left(digits, 2) + u':' + Mid(digits, 3, 2) + u':' + Mid(digits, 5, 2);
}

constexpr std::array<std::pair<QStringView, QStringView>, 8> defaults{{{u"OraColazione", u"0900"},
                                                                       {u"OraPranzo", u"1230"},
                                                                       {u"DurataPranzo", u"0230"},
                                                                       {u"OraCena", u"2000"},
                                                                       {u"DurataCena", u"0130"},
                                                                       {u"OraNotte", u"2230"},
                                                                       {u"InizioVisita", u"0000"},
                                                                       {u"FineVisita", u"2400"}}};

} // namespace

bool metaDaConvertire(const RecordVecchio& record) {
    const QString& place = text(record, vecchieMete(), u"Locali");
    return Val(text(record, vecchieMete(), u"Codice")) > 0 && !place.startsWith(u"..") && !Trim(place).isEmpty();
}

QString codiceConvertito(const RecordVecchio& record) {
    return Zero(Val(text(record, vecchieMete(), u"Codice")), 6);
}

QString nomeConvertito(const RecordVecchio& record) {
    return text(record, vecchieMete(), u"Locali");
}

CodiciConvertiti::CodiciConvertiti(const QStringList& stored, const QStringList& old) : before_(stored) {
    for (const QString& code : stored + old)
        taken_.insert(roundToInt(Val(code)));
}

void CodiciConvertiti::read(const QByteArray& contents) {
    for (const QString& line : QString::fromUtf8(contents).split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList parts = line.split(u'\t');
        if (parts.size() == 4)
            moved_.push_back({parts[0], parts[1], parts[2] == u"1", parts[3]});
    }
}

void CodiciConvertiti::keep(const std::function<bool(const Spostata&)>& isStored) {
    std::erase_if(moved_, [&isStored](const Spostata& one) { return !isStored(one); });
    for (const Spostata& one : moved_)
        before_.removeAll(one.nuovo);
}

QByteArray CodiciConvertiti::contenuto() const {
    QString lines;
    for (const Spostata& one : moved_)
        lines += QStringList{one.vecchio, one.nuovo, QString(one.conTappe ? u'1' : u'0'), one.nome}.join(u'\t') + u'\n';
    return lines.toUtf8();
}

QString CodiciConvertiti::perMeta(const QString& old, const QString& name, bool taken) {
    const auto known =
        std::ranges::find_if(moved_, [&](const Spostata& one) { return one.vecchio == old && one.nome == name; });
    if (known != moved_.end())
        return known->nuovo;
    if (!taken)
        return old;
    int code = 1;
    while (taken_.contains(code))
        ++code;
    taken_.insert(code);
    moved_.push_back({old, Zero(code, 6), before_.contains(old), name});
    return moved_.back().nuovo;
}

QString CodiciConvertiti::perTappe(const QString& code) const {
    for (const Spostata& one : moved_) {
        if (one.nuovo == code)
            return one.conTappe ? one.vecchio : QString();
        if (one.vecchio == code && one.conTappe)
            return {};
    }
    return code;
}

std::optional<TappaConvertita> tappaConvertita(const RecordVecchio& record) {
    const FormatoVecchio& format = vecchieTappe();
    constexpr qsizetype longestRoad = 64;
    const QString& whole = text(record, format, u"Locali");
    const qsizetype star = whole.indexOf(u'*');
    const QString place = star < 0 ? whole : whole.left(star);
    // In alphabetical order every letter lies between A and Z, also one with an accent.
    if (place.isEmpty() || !place.front().isLetter())
        return std::nullopt;
    const QString road = star < 0 ? QString() : Trim(whole.sliced(star + 1));
    return TappaConvertita{Trim(place),
                           text(record, format, u"Chilom"),
                           Left(road + u' ', longestRoad),
                           text(record, format, u"TipoSt"),
                           sosta(text(record, format, u"TempoS")),
                           text(record, format, u"FlagED")};
}

VoceConvertita voceConvertita(const RecordVecchio& record) {
    const FormatoVecchio& format = vecchiaGuida();
    const QString time = AntStr(Trim(text(record, format, u"TempoS")), 4, QStringLiteral("0"));
    return {text(record, format, u"Locali"), text(record, format, u"Descri"),
            AntStr(Trim(text(record, format, u"TipoDa")), 2, QStringLiteral("0")),
            Left(time, 2) + u':' + Right(time, 2), text(record, format, u"FlagVi")};
}

TappeVecchie tappeDaLeggere(const FileVecchio& file) {
    const int present = file.numero() - 1;
    if (present < 0)
        return {};
    const auto head = file.record(1);
    double told = 0;
    bool readable = head.has_value();
    if (head) {
        told = Int(Val(text(*head, vecchieTappe(), u"Locali")));
        readable = told >= 0 && told == Int(Val(text(*head, vecchieTappe(), u"Chilom")));
    }
    const double most = Minore(present, massimoTratti);
    const int legs = readable ? static_cast<int>(Minore(told, most)) : 0;
    return {legs, present - legs + (readable && told <= most ? 0 : 1)};
}

QString valoreAdeguato(QStringView field, int size, const QString& value) {
    if ((size != 2 && size != 4) || Val(value) != 0)
        return value;
    if (size == 2)
        return QStringLiteral("00");
    const auto* const found = std::ranges::find_if(defaults, [field](const auto& d) { return uguale(d.first, field); });
    return found == defaults.end() ? value : found->second.toString();
}

} // namespace vanzer
