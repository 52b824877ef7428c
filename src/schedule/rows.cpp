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

void scriveTratto(CelleViandoria& cells, int number, const RigaViandoria& row, const RigaDiLavoro& work,
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

void scriveSosta(CelleViandoria& cells, const RigaViandoria& row, const RigaDiLavoro& work,
                 const TestiViandoria& texts) {
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

void notaDelGiorno(CelleViandoria& cells, Somma& day, QStringView stopsWord) {
    if (day.km != 0) {
        QString note = cells[colNote] + u" [Km "_s + QString::number(day.km) + u" in ore "_s + oreDelGiorno(day.guida);
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
    Chiusura(std::vector<CelleViandoria>& rows, const Viandoria& schedule, const TestiViandoria& texts)
        : rows_(rows), schedule_(schedule), texts_(texts) {}

    std::array<QString, righeTotali> chiude() {
        if (rows_.size() >= 2)
            rows_[rows_.size() - 2][colFine] =
                u'>' + giornoEMese(schedule_.giuliano) + u'-' + oraMostrata(schedule_.ora);
        findStretch();
        for (std::size_t i = 0; i < rows_.size(); ++i)
            riga(i);
        if (day_.km != 0)
            notaDelGiorno(rows_.back(), day_, u"; sosta ore ");
        return totals();
    }

  private:
    /// From the last "[Start]" to the row before the next numbered one behind the last "[End]".
    void findStretch() {
        const std::size_t none = rows_.size();
        std::size_t end = none;
        for (std::size_t i = 0; i < rows_.size(); ++i) {
            const QString& name = rows_[i][colTappa];
            if (!name.contains(u'['))
                continue;
            if (contiene(name, marcaStart))
                first_ = i;
            if (contiene(name, marcaEnd))
                end = i;
        }
        last_ = none;
        if (end == none)
            return;
        for (std::size_t i = end + 1; i < rows_.size(); ++i) {
            if (!rows_[i][colNumero].isEmpty()) {
                last_ = i - 1;
                return;
            }
        }
    }

    void riga(std::size_t i) {
        const CelleViandoria& cells = rows_[i];
        if (cells[colGiorno].isEmpty())
            return;
        const RigaViandoria& row = schedule_.righe[i];
        const float driving = timeShown(row);
        const float stop = stopShown(row);
        if (i >= first_ && i <= last_) {
            if (row.km > 0)
                adds(stretch_, row.km, driving);
            stretch_.soste += stop;
        }
        if (cells[colGiorno] != weekDay_) {
            if (i > 0)
                notaDelGiorno(rows_[i - 1], day_, u"; soste per ore ");
            weekDay_ = cells[colGiorno];
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

    std::vector<CelleViandoria>& rows_;
    const Viandoria& schedule_;
    const TestiViandoria& texts_;
    std::size_t first_ = 0;
    std::size_t last_ = 0;
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

std::vector<CelleViandoria> celleViandoria(const Viandoria& schedule, const std::vector<RigaDiLavoro>& work,
                                           const TestiViandoria& texts) {
    std::vector<CelleViandoria> rows(schedule.righe.size());
    TestiGiorno day;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const RigaViandoria& row = schedule.righe[i];
        const RigaDiLavoro& source = work[static_cast<std::size_t>(row.lavoro)];
        CelleViandoria& cells = rows[i];
        cells.resize(numeroColonneViandoria);
        switch (row.tipo) {
        case RigaViandoria::Tipo::Tratto: scriveTratto(cells, static_cast<int>(i) + 1, row, source, texts); break;
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
        if (row.tipo == RigaViandoria::Tipo::Sosta && cells[colSosta].isEmpty() && cells[colSostaGuida].isEmpty())
            continue;
        day.mostra(row.giuliano);
        cells[colGiorno] = day.settimana;
        cells[colData] = day.data;
        cells[colOra] = (row.riposoDopo ? QStringLiteral("* ") : QString()) + oraMostrata(row.ora);
    }
    return rows;
}

std::array<QString, righeTotali> chiudeViandoria(std::vector<CelleViandoria>& rows, const Viandoria& schedule,
                                                 const TestiViandoria& texts) {
    return Chiusura(rows, schedule, texts).chiude();
}

bool rigaVuota(const CelleViandoria& cells) {
    static constexpr std::array<std::size_t, 9> columns{0, 2, 3, 4, 5, 6, 7, 8, 12};
    return std::all_of(columns.begin(), columns.end(), [&cells](std::size_t c) { return cells[c].isEmpty(); });
}

} // namespace vanzer
