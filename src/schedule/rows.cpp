// SPDX-License-Identifier: MIT
#include "schedule/rows.h"

#include <algorithm>
#include <array>

#include <QStringBuilder>

#include "core/place_name.h"
#include "core/text.h"
#include "core/time_values.h"
#include "itinerary/leg_editor.h"

namespace vanzer {

using namespace Qt::StringLiterals;

namespace {

/// Kilometres, driving time and stops of a day, a stretch or the whole trip. Times are hundredths of an hour.
struct SommaViandoria {
    int km = 0;
    float guida = 0;
    float soste = 0;
};

constexpr int righeTotali = 7;

/// A stop's length rounded to whole minutes, as its text shows it. Hundredths of an hour.
float minutiInteri(float stop, float visitingDay) {
    const float unit = visitingDay > 0 ? visitingDay : giornoIntero;
    return recompose(splitTime(stop, unit), unit);
}

/// The text of a stop. A stop within one day shows only hours and minutes.
QString lunghezzaSosta(float length, float visitingDay) {
    const float unit = visitingDay > 0 ? visitingDay : giornoIntero;
    if (splitTime(length, unit).gg == 0)
        return ghmSenzaGiorni(length, unit);
    const QString text = ghmCentesimi2Stringa(length, unit);
    return text.size() >= 7 && text.startsWith(u"00") ? Mid(text, 4) : text;
}

QString senzaMarche(const QString& name) {
    return name.contains(u'[') ? QString(name)
                                     .remove(marcaStart.toString(), Qt::CaseInsensitive)
                                     .remove(marcaEnd.toString(), Qt::CaseInsensitive)
                               : name;
}

QString noteDelTratto(const RigaViandoria& row, const QString& breakMinutes) {
    QString note;
    if (row.pranzo)
        note = Trim(note + u" Pranzo"_s);
    if (row.cena)
        note = Trim(note + u" Cena"_s);
    if (row.notte)
        note = Trim(note + u" Notte"_s);
    return row.pausa ? u"Riposo "_s + breakMinutes + u'\'' + note : note;
}

void writeStretch(RigaDiTesti cells, int number, const RigaViandoria& row, const RigaDiLavoro& work,
                  const TestiViandoria& texts) {
    cells[colNumero] = QString::number(number);
    cells[colTappa] = row.verso ? u"verso: "_s + RiPulisceNomeLocalita(work.nome) : work.nome;
    cells[colStrada] = Trim(texts.tappa(work.tappa, colStrada));
    cells[colKm] = row.km == 0 ? QString() : QString::number(row.km);
    cells[colTipo] = texts.tappa(work.tappa, colTipo);
    cells[colKmProgressivi] = migliaia(row.kmTotali);
    cells[colTempo] = ghmSenzaGiorni(row.tempo, texts.oreGuidaGiorno);
    cells[colNote] = noteDelTratto(row, texts.minutiPausa);
}

void writeStop(RigaDiTesti cells, const RigaViandoria& row, const RigaDiLavoro& work, const TestiViandoria& texts) {
    cells[colTappa] = senzaMarche(RiPulisceNomeLocalita(nomeMostrato(work)));
    cells[colSostaGuida] = lunghezzaSosta(row.sostaGuida, texts.oreVisitaGiorno);
    cells[colSosta] = lunghezzaSosta(minutiInteri(row.sosta, texts.oreVisitaGiorno), texts.oreVisitaGiorno);
    cells[colNote] = work.nota;
}

QString oreDelGiorno(float time) {
    return ghmSenzaGiorni(time, giornoIntero);
}

QString conNotaDelGiorno(QString note, const SommaViandoria& day, QStringView stopsWord) {
    if (day.km != 0) {
        note += u" [Km "_s + QString::number(day.km) + u" in ore "_s + oreDelGiorno(day.guida);
        if (day.soste != 0)
            note += stopsWord % oreDelGiorno(day.soste);
        return Trim(note + u']');
    }
    return day.soste == 0 ? note : note + u" [Sosta ore "_s + oreDelGiorno(day.soste) + u']';
}

/// The texts of a day. They are made once and shared by all its rows.
struct TestiGiorno {
    float giuliano = -1;
    QString settimana; ///< "Lun"
    QString data;      ///< "gg/mm"

    void showIfDue(float day) {
        if (day == giuliano)
            return;
        giuliano = day;
        settimana = GiornoSettimana(Giu2Datas(day));
        data = giornoEMese(day);
    }
};

/// Writes the cells of a row of the simulation. A stop of no length has neither day nor hour.
void writeRow(RigaDiTesti cells, int number, const RigaViandoria& row, const RigaDiLavoro& work,
              const TestiViandoria& texts, TestiGiorno& day) {
    switch (row.tipo) {
    case RigaViandoria::Tipo::Tratto: writeStretch(cells, number, row, work, texts); break;
    case RigaViandoria::Tipo::Sosta: writeStop(cells, row, work, texts); break;
    case RigaViandoria::Tipo::Menzione:
        cells[colTappa] = senzaMarche(nomeMostrato(work));
        cells[colNote] = work.nota;
        break;
    case RigaViandoria::Tipo::NuovoGiorno:
        cells[colTappa] = testoNuovoGiorno.toString();
        cells[colNote] = QStringLiteral("Nuovo giorno");
        break;
    }
    if (row.tipo == RigaViandoria::Tipo::Sosta && cells.text(colSosta).isEmpty() && cells.text(colSostaGuida).isEmpty())
        return;
    day.showIfDue(row.giuliano);
    cells[colGiorno] = day.settimana;
    cells[colData] = day.data;
    cells[colOra] = row.riposoDopo ? u"* "_s + oraMostrata(row.ora) : oraMostrata(row.ora);
}

/// Closes the rows in one pass: notes of the days, mark of the trip's end, sums.
class Chiusura {
  public:
    Chiusura(TestiTabella& rows, const Viandoria& schedule, const TestiViandoria& texts)
        : rows_(rows), schedule_(schedule), texts_(texts) {}

    std::array<QString, righeTotali> chiude() {
        const int rows = this->rows();
        if (rows >= 2)
            rows_.at(rows - 2, colFine) = u'>' + giornoEMese(schedule_.giuliano) + u'-' + oraMostrata(schedule_.ora);
        findStretch();
        for (int i = 0; i < rows; ++i)
            riga(i);
        if (day_.km != 0)
            closesDay(rows - 1, u"; sosta ore ");
        return totals();
    }

  private:
    [[nodiscard]] int rows() const { return static_cast<int>(schedule_.righe.size()); }

    /// Finds the stretch. It begins at the last "[Start]" and ends before the next numbered row after the last
    /// "[End]".
    void findStretch() {
        const int none = rows();
        int end = none;
        for (int i = 0; i < none; ++i) {
            const QString& name = rows_.text(i, colTappa);
            if (!name.contains(u'['))
                continue;
            if (contains(name, marcaStart))
                first_ = i;
            if (contains(name, marcaEnd))
                end = i;
        }
        last_ = none;
        for (int i = end + 1; i < none; ++i) {
            if (!rows_.text(i, colNumero).isEmpty()) {
                last_ = i - 1;
                return;
            }
        }
    }

    void riga(int i) {
        const QString& weekDay = rows_.text(i, colGiorno);
        if (weekDay.isEmpty())
            return;
        const RigaViandoria& row = schedule_.righe[static_cast<std::size_t>(i)];
        const float driving = timeShown(row);
        const float stop = stopShown(row);
        if (i >= first_ && i <= last_) {
            if (row.km > 0)
                adds(stretch_, row.km, driving);
            stretch_.soste += stop;
        }
        if (weekDay != weekDay_) {
            if (i > 0)
                closesDay(i - 1, u"; soste per ore ");
            weekDay_ = weekDay;
        }
        if (row.km != 0) {
            adds(day_, row.km, driving);
            adds(trip_, row.km, driving);
        }
        day_.soste += stop;
        trip_.soste += stop;
    }

    void closesDay(int row, QStringView stopsWord) {
        if (day_.km == 0 && day_.soste == 0)
            return;
        QString& note = rows_.at(row, colNote);
        note = conNotaDelGiorno(note, day_, stopsWord);
        if (day_.km != 0)
            day_ = {};
        day_.soste = 0;
    }

    static void adds(SommaViandoria& sum, int km, float time) {
        sum.km = addToInt(sum.km, km);
        sum.guida += time;
    }

    /// The driving time that the texts of a row show, read as if a day had 24 hours. Hundredths of an hour.
    [[nodiscard]] float timeShown(const RigaViandoria& row) const {
        Ghm time = splitTime(row.tempo, texts_.oreGuidaGiorno);
        time.gg = 0;
        return recompose(time, giornoIntero);
    }
    [[nodiscard]] float stopShown(const RigaViandoria& row) const {
        const float visitingDay = texts_.oreVisitaGiorno > 0 ? texts_.oreVisitaGiorno : giornoIntero;
        return recompose(splitTime(minutiInteri(row.sosta, visitingDay), visitingDay), giornoIntero);
    }

    [[nodiscard]] QString inBothDays(float time) const {
        return ghmCentesimi2Stringa(time, texts_.oreGuidaGiorno) + u" ("_s + ghmCentesimi2Stringa(time, giornoIntero) +
               u')';
    }

    [[nodiscard]] std::array<QString, righeTotali> totals() const {
        const auto line = [this](const SommaViandoria& sum) {
            return u"\t\tKm. "_s + migliaiaZero(sum.km) + u"  \tGuida "_s + inBothDays(sum.guida);
        };
        const SommaViandoria rest{addToInt(trip_.km, -std::int64_t{stretch_.km}), trip_.guida - stretch_.guida,
                                  trip_.soste - stretch_.soste};
        return {titoloTotali.toString(),
                QStringLiteral("Percorso specifico:\t"),
                line(stretch_) + u"\t Sosta "_s + inBothDays(stretch_.soste),
                QStringLiteral("Andata e ritorno per l'itinerario specifico:\t"),
                line(rest) + u'\t' + (rest.soste != 0 ? u" Sosta "_s + inBothDays(rest.soste) : QString()),
                QStringLiteral("Intero percorso:\t"),
                line(trip_) + u"  \t Sosta "_s + inBothDays(trip_.soste)};
    }

    TestiTabella& rows_;
    const Viandoria& schedule_;
    const TestiViandoria& texts_;
    int first_ = 0;
    int last_ = 0;
    QString weekDay_;
    SommaViandoria day_;
    SommaViandoria stretch_;
    SommaViandoria trip_;
};

/// Whether a row has text in any cell except name, day and hour.
bool says(const TestiTabella& rows, int row) {
    static constexpr std::array columns{colNumero, colStrada,     colKm,    colTipo, colKmProgressivi,
                                        colTempo,  colSostaGuida, colSosta, colNote};
    return std::ranges::any_of(columns, [&](int column) { return !rows.text(row, column).isEmpty(); });
}

} // namespace

QString giornoEMese(float giuliano) {
    return Left(Data2Data(Giu2Datas(giuliano)), 5);
}

QString oraMostrata(float ora) {
    return ghmSenzaGiorni(ora, giornoIntero);
}

TestiTabella celleViandoria(const Viandoria& schedule, const std::vector<RigaDiLavoro>& work,
                            const TestiViandoria& texts, int blankRows) {
    const int written = static_cast<int>(schedule.righe.size());
    TestiTabella rows;
    rows.setRows(written + blankRows);
    TestiGiorno day;
    for (int i = 0; i < written; ++i) {
        const RigaViandoria& row = schedule.righe[static_cast<std::size_t>(i)];
        writeRow(RigaDiTesti(rows, i), i + 1, row, work[static_cast<std::size_t>(row.lavoro)], texts, day);
    }
    return rows;
}

TestiTabella tabellaViandoria(const Viandoria& schedule, const std::vector<RigaDiLavoro>& work,
                              const TestiViandoria& texts) {
    TestiTabella rows = celleViandoria(schedule, work, texts, righeTotali);
    const std::array<QString, righeTotali> totals = Chiusura(rows, schedule, texts).chiude();
    int left = 0;
    for (int row = 0; row < rows.rows(); ++row) {
        if (!says(rows, row))
            continue;
        if (left != row)
            rows.copyRow(left, rows, row);
        ++left;
    }
    rows.setRows(left);
    for (const QString& total : totals)
        rows.at(rows.addRow(), colTappa) = total;
    return rows;
}

} // namespace vanzer
