// SPDX-License-Identifier: MIT
#include "reports/text_files.h"

#include "core/text.h"
#include "schedule/rows.h"

namespace vanzer {

namespace {

constexpr int cellsOfLine = 11;
const QString tab = QStringLiteral("\t");

/// Whether a row names no place: a stop, a break, or a text that begins with one of these characters.
bool passedOver(const QString& place) {
    static constexpr QStringView noPlaces = u">\\aA*";
    return place.isEmpty() || noPlaces.contains(place.front()) || beginsWith(place, u"verso");
}

QString withoutDirections(QString place) {
    for (const char16_t* direction : {u"NORD", u"OVEST", u"EST", u"SUD"})
        place.remove(QString::fromUtf16(direction), Qt::CaseInsensitive);
    return place;
}

/// The first row of totals. `rows` if there are none.
int firstTotal(int rows, const CellaViandoria& cell) {
    for (int r = 1; r < rows; ++r) {
        if (cell(r, colNumero).isEmpty() && cell(r, colTappa) == titoloTotali)
            return r;
    }
    return rows;
}

} // namespace

QStringList intestazioneTabella(const QString& trip) {
    static const QStringList headings{QStringLiteral("Num."),  QStringLiteral("Località"), QStringLiteral("N.Str"),
                                      QStringLiteral("Km."),   QStringLiteral("Ts"),       QStringLiteral("Pr/Km"),
                                      QStringLiteral("Tempo"), QStringLiteral("Sosta"),    QStringLiteral("G.Sett"),
                                      QStringLiteral("Data"),  QStringLiteral("Ora"),      QStringLiteral("Note")};
    return {trip, QString(), headings.join(tab)};
}

QString rigaTabella(int row, const CellaViandoria& cell) {
    constexpr qsizetype usual = 100;
    QString line;
    line.reserve(usual);
    for (int c = 0; c < cellsOfLine; ++c)
        line += Trim(cell(row, c)) + tab;
    return line;
}

QStringList listaLocalita(int rows, const CellaViandoria& cell) {
    QStringList lines{QStringLiteral("'Nazione\tLocalità")};
    QString nation = QStringLiteral("Italia");
    const int end = firstTotal(rows, cell);
    for (int r = 1; r < end; ++r) {
        const QString place = Trim(cell(r, colTappa));
        if (passedOver(place))
            continue;
        if (contains(place, u"INGRESSO "))
            nation = Trim(Mid(place, posizione(place, u"IN ") + 3));
        else
            lines << nation + tab + withoutDirections(place);
    }
    return lines;
}

QString viaggioPerModuli(const QString& trip, const std::array<QString, 3>& first, const std::array<QString, 3>& last) {
    const auto date = [](const std::array<QString, 3>& d) { return d[0] + u'/' + d[1] + u'/' + d[2]; };
    return trip + u',' + date(first) + u',' + date(last);
}

QString comandoModuli(const QString& directory, const QString& trip) {
    return directory + QStringLiteral("\\Scribolo.exe ") + trip;
}

} // namespace vanzer
