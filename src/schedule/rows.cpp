#include "schedule/rows.h"

#include <algorithm>
#include <utility>

#include <QStringBuilder>

#include "core/place_name.h"
#include "core/text.h"
#include "core/time_values.h"
#include "itinerary/leg_editor.h"

namespace vanzer {

using namespace Qt::StringLiterals;

namespace {

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

/// The cells of a row as the simulation wrote it. A stop without any length has neither day nor hour.
void scriveRiga(RigaDiTesti cells, int number, const RigaViandoria& row, const RigaDiLavoro& work,
                const TestiViandoria& texts, TestiGiorno& day) {
    switch (row.tipo) {
    case RigaViandoria::Tipo::Tratto: scriveTratto(cells, number, row, work, texts); break;
    case RigaViandoria::Tipo::Sosta: scriveSosta(cells, row, work, texts); break;
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
    day.mostra(row.giuliano);
    cells[colGiorno] = day.settimana();
    cells[colData] = day.data();
    cells[colOra] = row.riposoDopo ? u"* "_s + oraMostrata(row.ora) : oraMostrata(row.ora);
}

/// A stop whose texts of its length are empty.
bool senzaLunghezza(const RigaViandoria& row, float visitingDay) {
    const auto nothing = [visitingDay](float length) {
        return length == 0 || lunghezzaSosta(length, visitingDay).isEmpty();
    };
    return row.tipo == RigaViandoria::Tipo::Sosta && nothing(row.sostaGuida) &&
           nothing(minutiInteri(row.sosta, visitingDay));
}

} // namespace

void TestiGiorno::mostra(float giuliano) {
    if (giuliano == giuliano_)
        return;
    giuliano_ = giuliano;
    const QString date = Giu2Datas(giuliano);
    week_ = GiornoSettimana(date);
    date_ = Left(Data2Data(date), 5);
}

/// One way through the rows: sums and notes of the days, rows that stay.
class TabellaViandoria::Chiusura {
  public:
    explicit Chiusura(TabellaViandoria& table)
        : table_(table), schedule_(table.schedule_), work_(table.work_), texts_(table.texts_) {}

    void chiude() {
        const int rows = this->rows();
        if (rows >= 2)
            table_.endRow_ = rows - 2;
        findStretch();
        table_.kept_.reserve(schedule_.righe.size());
        for (int i = 0; i < rows; ++i) {
            riga(i);
            if (says(i))
                table_.kept_.push_back(i);
        }
        if (day_.km != 0)
            closesDay(rows - 1, true);
        table_.totals_ = totals();
    }

  private:
    [[nodiscard]] int rows() const { return static_cast<int>(schedule_.righe.size()); }
    [[nodiscard]] const RigaViandoria& at(int i) const { return schedule_.righe[static_cast<std::size_t>(i)]; }
    [[nodiscard]] const RigaDiLavoro& workOf(int i) const { return work_[static_cast<std::size_t>(at(i).lavoro)]; }

    /// The name that a row shows, if it may bear a mark.
    [[nodiscard]] QString markedName(int i) const {
        const RigaViandoria& row = at(i);
        const bool leg = row.tipo == RigaViandoria::Tipo::Tratto;
        if (leg ? row.verso : row.tipo != RigaViandoria::Tipo::Menzione)
            return {};
        const RigaDiLavoro& work = workOf(i);
        return !work.quadra ? QString() : leg ? work.nome : senzaMarche(nomeMostrato(work));
    }

    /// From the last "[Start]" to the row before the next numbered one behind the last "[End]".
    void findStretch() {
        const int none = rows();
        int end = none;
        for (int i = 0; i < none; ++i) {
            const QString name = markedName(i);
            if (name.isEmpty())
                continue;
            if (contiene(name, marcaStart))
                first_ = i;
            if (contiene(name, marcaEnd))
                end = i;
        }
        last_ = none;
        for (int i = end + 1; i < none; ++i) {
            if (at(i).tipo == RigaViandoria::Tipo::Tratto) {
                last_ = i - 1;
                return;
            }
        }
    }

    void riga(int i) {
        const RigaViandoria& row = at(i);
        if (senzaLunghezza(row, texts_.oreVisitaGiorno))
            return;
        date_.mostra(row.giuliano);
        const QString& weekDay = date_.settimana();
        if (weekDay.isEmpty())
            return;
        const float driving = timeShown(row);
        const float stop = stopShown(row);
        if (i >= first_ && i <= last_) {
            if (row.km > 0)
                adds(stretch_, row.km, driving);
            stretch_.soste += stop;
        }
        if (weekDay != weekDay_) {
            if (i > 0)
                closesDay(i - 1, false);
            weekDay_ = weekDay;
        }
        if (row.km != 0) {
            adds(day_, row.km, driving);
            adds(trip_, row.km, driving);
        }
        day_.soste += stop;
        trip_.soste += stop;
    }

    /// The note stands on the row that was walked last: the row stays then.
    void closesDay(int row, bool last) {
        if (day_.km == 0 && day_.soste == 0)
            return;
        table_.notes_.push_back({row, day_, last});
        if (table_.kept_.empty() || table_.kept_.back() != row)
            table_.kept_.push_back(row);
        if (day_.km != 0)
            day_ = {};
        day_.soste = 0;
    }

    /// Whether anything stands in the row beyond its name, day and hour.
    [[nodiscard]] bool says(int i) const {
        const RigaViandoria& row = at(i);
        using enum RigaViandoria::Tipo;
        if (row.tipo == Tratto || row.tipo == NuovoGiorno)
            return true;
        return (row.tipo == Sosta && !senzaLunghezza(row, texts_.oreVisitaGiorno)) || !workOf(i).nota.isEmpty();
    }

    static void adds(SommaViandoria& sum, int km, float time) {
        sum.km = somma(sum.km, km);
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
        const auto line = [this](const SommaViandoria& sum) {
            return u"\t\tKm. "_s + migliaiaZero(sum.km) + u"  \tGuida "_s + inBothDays(sum.guida);
        };
        const SommaViandoria rest{somma(trip_.km, -std::int64_t{stretch_.km}), trip_.guida - stretch_.guida,
                                  trip_.soste - stretch_.soste};
        return {titoloTotali.toString(),
                QStringLiteral("Percorso specifico:\t"),
                line(stretch_) + u"\t Sosta "_s + inBothDays(stretch_.soste),
                QStringLiteral("Andata e ritorno per l'itinerario specifico:\t"),
                line(rest) + u'\t' + (rest.soste != 0 ? u" Sosta "_s + inBothDays(rest.soste) : QString()),
                QStringLiteral("Intero percorso:\t"),
                line(trip_) + u"  \t Sosta "_s + inBothDays(trip_.soste)};
    }

    TabellaViandoria& table_;
    const Viandoria& schedule_;
    const std::vector<RigaDiLavoro>& work_;
    const TestiViandoria& texts_;
    int first_ = 0;
    int last_ = 0;
    TestiGiorno date_;
    QString weekDay_;
    SommaViandoria day_;
    SommaViandoria stretch_;
    SommaViandoria trip_;
};

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
        scriveRiga(RigaDiTesti(rows, i), i + 1, row, work[static_cast<std::size_t>(row.lavoro)], texts, day);
    }
    return rows;
}

TabellaViandoria::TabellaViandoria(const Viandoria& schedule, const std::vector<RigaDiLavoro>& work,
                                   TestiViandoria texts)
    : schedule_(schedule), work_(work), texts_(std::move(texts)) {
    Chiusura(*this).chiude();
}

void TabellaViandoria::scrive(int row, RigaDiTesti cells) {
    const auto at = static_cast<std::size_t>(row);
    if (at >= kept_.size()) {
        cells[colTappa] = totals_[at - kept_.size()];
        return;
    }
    const int i = kept_[at];
    const RigaViandoria& shown = schedule_.righe[static_cast<std::size_t>(i)];
    scriveRiga(cells, i + 1, shown, work_[static_cast<std::size_t>(shown.lavoro)], texts_, day_);
    const auto note = std::ranges::lower_bound(notes_, i, {}, &NotaGiorno::riga);
    if (note != notes_.end() && note->riga == i)
        cells[colNote] =
            conNotaDelGiorno(cells.text(colNote), note->giorno, note->ultimo ? u"; sosta ore " : u"; soste per ore ");
    if (i == endRow_)
        cells[colFine] = u'>' + giornoEMese(schedule_.giuliano) + u'-' + oraMostrata(schedule_.ora);
}

} // namespace vanzer
