#include "schedule/rows.h"

#include <algorithm>

#include "core/place_name.h"
#include "core/text.h"
#include "core/time_values.h"
#include "itinerary/leg_editor.h"

namespace vanzer {

using namespace Qt::StringLiterals;

namespace {

/// The texts of a day, made once for all its rows.
struct TestiGiorno {
    float giuliano = -1;
    QString settimana;
    QString data;

    void mostra(float day) {
        if (day == giuliano)
            return;
        giuliano = day;
        const QString date = Giu2Datas(day);
        settimana = GiornoSettimana(date);
        data = Left(Data2Data(date), 5);
    }
};

/// A stop as its text tells it, hundredths.
float minutiInteri(float stop, float visitingDay) {
    const float unit = visitingDay > 0 ? visitingDay : giornoIntero;
    return ricompone(scompone(stop, unit), unit);
}

/// A stop within a day shows hours and minutes alone.
QString lunghezzaSosta(float length, float visitingDay) {
    const float unit = visitingDay > 0 ? visitingDay : giornoIntero;
    if (scompone(length, unit).gg == 0)
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

void scriveTratto(RigaDiTesti cells, int number, const RigaViandoria& row, const RigaDiLavoro& work,
                  const TestiViandoria& texts) {
    cells[colNumero] = testoNumero(number);
    cells[colTappa] = row.verso ? u"verso: "_s + RiPulisceNomeLocalita(work.nome) : work.nome;
    cells[colStrada] = Trim(texts.tappa(work.tappa, colStrada));
    cells[colKm] = row.km == 0 ? QString() : testoNumero(row.km);
    cells[colTipo] = texts.tappa(work.tappa, colTipo);
    cells[colKmProgressivi] = migliaia(row.kmTotali);
    cells[colTempo] = ghmSenzaGiorni(row.tempo, texts.oreGuidaGiorno);
    cells[colNote] = noteDelTratto(row, texts.minutiPausa);
}

void scriveSosta(RigaDiTesti cells, const RigaViandoria& row, const RigaDiLavoro& work, const TestiViandoria& texts) {
    cells[colTappa] = senzaMarche(RiPulisceNomeLocalita(work.nome));
    cells[colSostaGuida] = lunghezzaSosta(row.sostaGuida, texts.oreVisitaGiorno);
    cells[colSosta] = lunghezzaSosta(minutiInteri(row.sosta, texts.oreVisitaGiorno), texts.oreVisitaGiorno);
    cells[colNote] = work.nota;
}

/// Kilometres, driving time and stops of a day, a stretch or the whole trip; times in hundredths.
struct Somma {
    int km = 0;
    float guida = 0;
    float soste = 0;
};

QString oreDelGiorno(float time) {
    return ghmSenzaGiorni(time, giornoIntero);
}

void notaDelGiorno(RigaDiTesti cells, Somma& day, QStringView stopsWord) {
    if (day.km != 0) {
        QString note =
            cells.text(colNote) + u" [Km "_s + QString::number(day.km) + u" in ore "_s + oreDelGiorno(day.guida);
        if (day.soste != 0)
            note += stopsWord.toString() + oreDelGiorno(day.soste);
        cells[colNote] = Trim(note + u']');
        day = {};
    }
    if (day.soste != 0) {
        cells[colNote] += u" [Sosta ore "_s + oreDelGiorno(day.soste) + u']';
        day.soste = 0;
    }
}

class Chiusura {
  public:
    Chiusura(TestiTabella& rows, const Viandoria& schedule, const TestiViandoria& texts)
        : rows_(rows), schedule_(schedule), texts_(texts) {}

    std::array<QString, righeTotali> chiude() {
        const int rows = rows_.rows();
        if (rows >= 2)
            rows_.at(rows - 2, colFine) = u'>' + giornoEMese(schedule_.giuliano) + u'-' + oraMostrata(schedule_.ora);
        findStretch();
        for (int i = 0; i < rows; ++i)
            riga(i);
        if (day_.km != 0)
            notaDelGiorno(RigaDiTesti(rows_, rows - 1), day_, u"; sosta ore ");
        return totals();
    }

  private:
    /// From the last "[Start]" to the row before the next numbered one behind the last "[End]".
    void findStretch() {
        const int none = rows_.rows();
        int end = none;
        for (int i = 0; i < none; ++i) {
            const QString& name = rows_.text(i, colTappa);
            if (!name.contains(u'['))
                continue;
            if (contiene(name, marcaStart))
                first_ = i;
            if (contiene(name, marcaEnd))
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
                notaDelGiorno(RigaDiTesti(rows_, i - 1), day_, u"; soste per ore ");
            weekDay_ = weekDay;
        }
        if (row.km != 0) {
            adds(day_, row.km, driving);
            adds(trip_, row.km, driving);
        }
        day_.soste += stop;
        trip_.soste += stop;
    }

    static void adds(Somma& sum, int km, float time) {
        sum.km += km;
        sum.guida += time;
    }

    /// What the texts of a row say, read with a day of 24 hours.
    [[nodiscard]] float timeShown(const RigaViandoria& row) const {
        Ghm time = scompone(row.tempo, texts_.oreGuidaGiorno);
        time.gg = 0;
        return ricompone(time, giornoIntero);
    }
    [[nodiscard]] float stopShown(const RigaViandoria& row) const {
        const float visitingDay = texts_.oreVisitaGiorno > 0 ? texts_.oreVisitaGiorno : giornoIntero;
        return ricompone(scompone(minutiInteri(row.sosta, visitingDay), visitingDay), giornoIntero);
    }

    [[nodiscard]] QString inBothDays(float time) const {
        return ghmCentesimi2Stringa(time, texts_.oreGuidaGiorno) + u" ("_s + ghmCentesimi2Stringa(time, giornoIntero) +
               u')';
    }

    [[nodiscard]] std::array<QString, righeTotali> totals() const {
        const auto line = [this](const Somma& sum) {
            return u"\t\tKm. "_s + migliaiaZero(sum.km) + u"  \tGuida "_s + inBothDays(sum.guida);
        };
        const Somma rest{trip_.km - stretch_.km, trip_.guida - stretch_.guida, trip_.soste - stretch_.soste};
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
    Somma day_;
    Somma stretch_;
    Somma trip_;
};

} // namespace

QString giornoEMese(float giuliano) {
    return Left(Data2Data(Giu2Datas(giuliano)), 5);
}

QString oraMostrata(float ora) {
    return ghmSenzaGiorni(ora, giornoIntero);
}

TestiTabella celleViandoria(const Viandoria& schedule, const std::vector<RigaDiLavoro>& work,
                            const TestiViandoria& texts) {
    TestiTabella rows;
    rows.setRows(static_cast<int>(schedule.righe.size()));
    TestiGiorno day;
    for (int i = 0; i < rows.rows(); ++i) {
        const RigaViandoria& row = schedule.righe[static_cast<std::size_t>(i)];
        const RigaDiLavoro& source = work[static_cast<std::size_t>(row.lavoro)];
        RigaDiTesti cells(rows, i);
        switch (row.tipo) {
        case RigaViandoria::Tipo::Tratto: scriveTratto(cells, i + 1, row, source, texts); break;
        case RigaViandoria::Tipo::Sosta: scriveSosta(cells, row, source, texts); break;
        case RigaViandoria::Tipo::Menzione:
            cells[colTappa] = senzaMarche(source.nome);
            cells[colNote] = source.nota;
            break;
        case RigaViandoria::Tipo::NuovoGiorno:
            cells[colTappa] = testoNuovoGiorno.toString();
            cells[colNote] = QStringLiteral("Nuovo giorno");
            break;
        }
        // A stop without any length has neither day nor hour.
        if (row.tipo == RigaViandoria::Tipo::Sosta && cells.text(colSosta).isEmpty() &&
            cells.text(colSostaGuida).isEmpty())
            continue;
        day.mostra(row.giuliano);
        cells[colGiorno] = day.settimana;
        cells[colData] = day.data;
        cells[colOra] = (row.riposoDopo ? QStringLiteral("* ") : QString()) + oraMostrata(row.ora);
    }
    return rows;
}

std::array<QString, righeTotali> chiudeViandoria(TestiTabella& rows, const Viandoria& schedule,
                                                 const TestiViandoria& texts) {
    return Chiusura(rows, schedule, texts).chiude();
}

bool rigaVuota(const TestiTabella& rows, int row) {
    static constexpr std::array<int, 9> columns{0, 2, 3, 4, 5, 6, 7, 8, 12};
    return std::all_of(columns.begin(), columns.end(), [&](int column) { return rows.text(row, column).isEmpty(); });
}

} // namespace vanzer
