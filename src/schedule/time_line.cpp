// SPDX-License-Identifier: MIT
#include "schedule/time_line.h"

#include <algorithm>
#include <cmath>

#include "core/place_name.h"
#include "core/text.h"
#include "core/time_values.h"

namespace vanzer {

using namespace Qt::StringLiterals;

namespace {

constexpr double giorno = giornoIntero;
constexpr double minutiDelGiorno = 1440;
constexpr double impercettibile = 2; ///< hundredths of an hour; a shorter gap comes from rounding and is no activity

double ore(float x) {
    return static_cast<double>(x);
}

double inizioDelGiorno(double at) {
    return std::floor(at / giorno) * giorno;
}

class Tracciatore {
  public:
    Tracciatore(const Viandoria& schedule, const std::vector<RigaDiLavoro>& work, const ParametriSimulazione& with,
                const StradaTappa& road)
        : schedule_(schedule), work_(work), p_(with), road_(road) {
        line_.giulianoInizio = with.giulianoInizio;
    }

    LineaDelTempo traccia() && {
        for (std::size_t i = 0; i < schedule_.righe.size(); ++i)
            riga(static_cast<int>(i), schedule_.righe[i]);
        if (last_ != nullptr)
            fills(at(schedule_.giuliano, schedule_.ora));
        return std::move(line_);
    }

  private:
    [[nodiscard]] double at(float day, float clock) const {
        return (ore(day) - ore(p_.giulianoInizio)) * giorno + ore(clock);
    }

    void riga(int index, const RigaViandoria& row) {
        using Riga = RigaViandoria::Tipo;
        if (row.tipo == Riga::Menzione)
            return;
        const double end = at(row.giuliano, row.ora);
        const double begin = row.tipo == Riga::NuovoGiorno ? end : at(row.giornoInizio, row.inizio);
        if (last_ == nullptr)
            now_ = begin;
        fills(begin);
        row_ = index;
        last_ = &row;
        const RigaDiLavoro& source = work_[static_cast<std::size_t>(row.lavoro)];
        if (row.tipo == Riga::Tratto)
            drive(row, source, begin, end);
        else if (row.tipo == Riga::Sosta)
            stop(source, begin, end);
        now_ = std::max(begin, end);
    }

    void drive(const RigaViandoria& row, const RigaDiLavoro& leg, double begin, double end) {
        place_ = RiPulisceNomeLocalita(leg.nome);
        shown_ = row.verso ? u"verso "_s + place_ : place_;
        if (end <= begin)
            return;
        Attivita& piece = adds(Attivita::Tipo::Guida, begin, end, shown_);
        piece.nota = road_(leg.tappa);
        piece.km = row.km;
    }

    void stop(const RigaDiLavoro& source, double begin, double end) {
        QString name = Trim(RiPulisceNomeLocalita(nomeMostrato(source)));
        if (name.startsWith(u'>'))
            name = Trim(name.mid(1));
        const double firstDay = inizioDelGiorno(begin);
        const auto days = std::lround((inizioDelGiorno(at(last_->giuliano, 0)) - firstDay) / giorno);
        const auto visits = [this, &source, &name](double from, double to) {
            if (to > from)
                adds(Attivita::Tipo::Sosta, from, to, name).nota = source.nota;
        };
        now_ = begin;
        for (long past = 0; past < days; ++past) {
            const double day = firstDay + static_cast<double>(past) * giorno;
            const double from = past == 0 ? begin : day + ore(p_.inizioVisita);
            const double to = std::max(from, day + ore(p_.fineVisita));
            visits(from, to);
            now_ = to;
            rests(std::min(day + giorno + ore(p_.inizioVisita), end));
        }
        visits(now_, end);
    }

    /// Fills the time from the last row up to `until`: first its meals and breaks, then nights and free hours.
    void fills(double until) {
        if (last_ == nullptr)
            return;
        const auto lasts = [this, until](bool there, Attivita::Tipo type, float length, const char16_t* name) {
            if (!there)
                return;
            const double end = std::min(now_ + ore(length), until);
            if (end > now_)
                adds(type, now_, end, QString::fromUtf16(name));
            now_ = std::max(now_, end);
        };
        lasts(last_->pranzo, Attivita::Tipo::Pasto, p_.durataPranzo, u"Pranzo");
        lasts(last_->cena, Attivita::Tipo::Pasto, p_.durataCena, u"Cena");
        lasts(last_->pausa, Attivita::Tipo::Pausa, last_->riposo, u"Riposo");
        night_ = last_->notte;
        rests(until);
        night_ = false;
    }

    void rests(double until) {
        while (inizioDelGiorno(now_) < inizioDelGiorno(until)) {
            const double midnight = inizioDelGiorno(now_) + giorno;
            const double evening = night_ ? now_ : std::clamp(midnight - giorno + ore(p_.oraNotte), now_, midnight);
            free(evening);
            sleeps(std::min(midnight + ore(p_.oraColazione), until));
        }
        const double morning = std::min(inizioDelGiorno(now_) + ore(p_.oraColazione), until);
        if (morning - now_ > impercettibile)
            sleeps(morning);
        free(until);
    }

    void sleeps(double until) {
        if (until > now_)
            adds(Attivita::Tipo::Notte, now_, until, shown_);
        now_ = std::max(now_, until);
        night_ = false;
    }

    void free(double until) {
        if (until - now_ > impercettibile)
            adds(Attivita::Tipo::Libero, now_, until, QStringLiteral("Libero"));
        now_ = std::max(now_, until);
    }

    Attivita& adds(Attivita::Tipo type, double from, double to, const QString& name) {
        Attivita& made = line_.attivita.emplace_back();
        made.tipo = type;
        made.inizio = from;
        made.fine = to;
        made.riga = row_;
        made.nome = name;
        made.luogo = place_;
        return made;
    }

    const Viandoria& schedule_;
    const std::vector<RigaDiLavoro>& work_;
    const ParametriSimulazione& p_;
    const StradaTappa& road_;
    LineaDelTempo line_;
    const RigaViandoria* last_ = nullptr;
    int row_ = 0;
    double now_ = 0;     ///< the line is filled up to here
    bool night_ = false; ///< the night begins at once
    QString place_;      ///< the last place reached, or on the way the next one
    QString shown_;      ///< the same, as a night shows it
};

void counts(Giornata& day, const Attivita& activity, double hundredths, bool begins) {
    if (activity.tipo == Attivita::Tipo::Sosta)
        day.soste += hundredths;
    if (activity.tipo != Attivita::Tipo::Guida)
        return;
    day.guida += hundredths;
    day.km = addToInt(day.km, begins ? activity.km : 0);
}

QString dataMostrata(float giuliano) {
    const QString date = Giu2Datas(giuliano);
    return GiornoSettimana(date) + u' ' + Left(Data2Data(date), 5);
}

QString orologio(const Istante& moment) {
    return Zero(moment.ora, 2) + u':' + Zero(moment.minuti, 2);
}

} // namespace

LineaDelTempo lineaDelTempo(const Viandoria& schedule, const std::vector<RigaDiLavoro>& work,
                            const ParametriSimulazione& with, const StradaTappa& road) {
    return Tracciatore(schedule, work, with, road).traccia();
}

std::vector<Giornata> giornate(const LineaDelTempo& line) {
    std::vector<Giornata> days;
    const auto dayOf = [&line, &days](double at) -> Giornata& {
        const auto number = static_cast<std::size_t>(std::max(at / giorno, 0.0));
        while (days.size() <= number)
            days.push_back({dataMostrata(line.giulianoInizio + static_cast<float>(days.size())), {}, 0, 0, 0});
        return days[number];
    };
    for (std::size_t i = 0; i < line.attivita.size(); ++i) {
        const Attivita& activity = line.attivita[i];
        for (double from = activity.inizio; from < activity.fine;) {
            const double midnight = inizioDelGiorno(from);
            const double to = std::min(activity.fine, midnight + giorno);
            Giornata& day = dayOf(from);
            day.barre.push_back({i, from - midnight, to - midnight});
            counts(day, activity, to - from, from == activity.inizio);
            from = to;
        }
    }
    return days;
}

QString nomeAttivita(Attivita::Tipo type) {
    static constexpr std::array names{u"Guida", u"Sosta", u"Pasto", u"Riposo", u"Notte", u"Tempo libero"};
    return QString::fromUtf16(names[static_cast<std::size_t>(type)]);
}

QString descrizione(const LineaDelTempo& line, const Attivita& activity) {
    const Istante from = istante(line, activity.inizio);
    const Istante to = istante(line, activity.fine);
    QString text = dataMostrata(from.giuliano) + u' ' + orologio(from) + u" - "_s;
    if (to.giuliano != from.giuliano)
        text += dataMostrata(to.giuliano) + u' ';
    text += orologio(to) + u"  "_s + nomeAttivita(activity.tipo);
    QStringList more;
    if (!activity.nota.isEmpty())
        more << activity.nota;
    if (activity.km > 0)
        more << QString::number(activity.km) + u" km"_s;
    if (activity.tipo != Attivita::Tipo::Libero && activity.nome != nomeAttivita(activity.tipo))
        text += u": "_s + activity.nome;
    return more.isEmpty() ? text : text + u" ("_s + more.join(u", "_s) + u')';
}

Istante istante(const LineaDelTempo& line, double hundredths) {
    const double minutes = std::floor(hundredths * 60 / 100 + 0.5);
    const double days = std::floor(minutes / minutiDelGiorno);
    const int left = roundToInt(minutes - days * minutiDelGiorno);
    return {line.giulianoInizio + static_cast<float>(days), left / 60, left % 60};
}

} // namespace vanzer
