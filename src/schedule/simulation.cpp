// SPDX-License-Identifier: MIT
#include "schedule/simulation.h"

#include <algorithm>

#include "core/text.h"

namespace vanzer {

namespace {

using Fine = RigaViandoria::Fine;

double d(float x) {
    return static_cast<double>(x);
}
float f(double x) {
    return static_cast<float>(x);
}

/// Whole kilometres that fit into a time in hundredths of an hour. Without a speed (km/h) the result is longer than any
/// trip.
int lunghezza(double speed, double hundredths) {
    constexpr double longest = 1000000;
    return roundToInt(std::min(Int(speed * hundredths / 100), longest));
}

/// A milestone of the day: lunch, dinner or night. Holds the values that each row compares.
struct Traguardo {
    Traguardo(float clock, int range) : ora(clock), vicino(intorno(clock, range)), raggiunta(d(clock) + range) {}

    float ora;
    Intorno vicino;   ///< clocks that count as being at the milestone
    double raggiunta; ///< an arrival at or after this clock is past the milestone
};

class Prova {
  public:
    Prova(const std::vector<RigaDiLavoro>& rows, const ParametriSimulazione& with, float coefficiente,
          std::vector<RigaViandoria> memory)
        : rows_(rows), p_(with), coefficiente_(coefficiente), pranzo_(with.oraPranzo, with.range),
          cena_(with.oraCena, with.range), notte_(with.oraNotte, with.range) {
        result_.righe = std::move(memory);
        result_.righe.clear();
        result_.righe.reserve(rows.size() * 2);
        prepareStart();
    }

    Viandoria walk(const FermaRiga& stop) {
        float counted = giuliano_ - 1; // the last day that was counted
        for (int index = 0; const RigaDiLavoro& row : rows_) {
            if (stop && stop(index + 1, result_)) {
                result_.esito = Viandoria::Esito::Interrotta;
                break;
            }
            riga(index++, row);
            if (giuliano_ == counted)
                continue;
            counted = giuliano_;
            if (p_.giorniDesiderati != 0 && daysSoFar() > p_.giorniDesiderati) {
                result_.esito = Viandoria::Esito::TroppiGiorni;
                break;
            }
        }
        result_.giorni = daysSoFar();
        result_.ora = ora_;
        result_.giuliano = giuliano_;
        return std::move(result_);
    }

  private:
    [[nodiscard]] int daysSoFar() const { return roundToInt(d(giuliano_) - d(p_.giulianoInizio) + 1); }
    [[nodiscard]] bool vicino(const Traguardo& milestone) const { return milestone.vicino.contains(ora_); }

    /// Sets the clock and calendar of the start. A departure during a meal moves to the end of the meal. A departure
    /// after the night moves to the hour of activity of the same date.
    void prepareStart() {
        ora_ = p_.oraInizioViaggio;
        if (ora_ >= p_.oraPranzo && ora_ <= fineDelPranzo_)
            ora_ = f(d(fineDelPranzo_) + 1);
        if (ora_ >= p_.oraCena && ora_ <= fineDellaCena_)
            ora_ = f(d(fineDellaCena_) + 1);
        if (ora_ >= p_.oraNotte)
            ora_ = p_.oraColazione;
        mealsFromClock();
        ultimoBreak_ = ora_;
        giuliano_ = p_.giulianoInizio;
        ultimoRiposo_ = p_.giulianoInizio;
    }

    void mealsFromClock() {
        pranzoFatto_ = fineDelPranzo_ < ora_;
        cenaFatta_ = fineDellaCena_ < ora_;
    }

    void newMorning() {
        giuliano_ += 1;
        ora_ = p_.oraColazione;
        pranzoFatto_ = false;
        cenaFatta_ = false;
    }

    RigaViandoria& add(RigaViandoria::Tipo type, int work) {
        RigaViandoria& row = result_.righe.emplace_back();
        row.tipo = type;
        row.lavoro = work;
        row.ora = ora_;
        row.giuliano = giuliano_;
        return row;
    }

    void riga(int index, const RigaDiLavoro& row) {
        switch (row.tipo) {
        case RigaDiLavoro::Tipo::Tappa: tappa(index, row); break;
        case RigaDiLavoro::Tipo::Menzione: add(RigaViandoria::Tipo::Menzione, index); break;
        default: sosta(index, row); break;
        }
        if (row.fineGiorno && ora_ > p_.oraColazione) {
            ora_ = p_.oraColazione;
            giuliano_ += 1;
            add(RigaViandoria::Tipo::NuovoGiorno, index);
        }
    }

    /// Drives a leg. The first row is the departure, which is written even without kilometres.
    void tappa(int index, const RigaDiLavoro& row) {
        if (row.traghetto)
            ++result_.traghetti;
        if (row.km < 1 && !result_.righe.empty())
            return;
        guida(index, row);
        if (ora_ > p_.oraNotte)
            newMorning();
    }

    void pieceTime(int km, double speed) {
        if (speed != 0)
            tempoTratta_ = f(Int(km / speed * 100 + 0.5));
    }

    void guida(int index, const RigaDiLavoro& leg) {
        const auto road = static_cast<std::size_t>(leg.strada);
        PannelloViandoria& panel = result_.pannello;
        int left = leg.km;
        do {
            Fine why = Fine::Arrivo;
            const int km = cutPiece(left, p_.medie[road], why);
            longRest();
            const float departure = ora_;
            ora_ = f(d(ora_) + d(tempoTratta_));
            panel.kmTotali = addToInt(panel.kmTotali, km);
            panel.km[road] = addToInt(panel.km[road], km);
            RigaViandoria& row = add(RigaViandoria::Tipo::Tratto, index);
            row.km = km;
            row.kmTotali = panel.kmTotali;
            row.tempo = tempoTratta_;
            row.inizio = departure;
            row.giornoInizio = giuliano_;
            milestones(row);
            left -= km;
            row.verso = left != 0;
            row.fine = row.verso ? why : Fine::Arrivo;
            panel.ora = row.ora;
            panel.giuliano = giuliano_;
            panel.traghetti = result_.traghetti;
        } while (left > 0);
    }

    /// Returns the kilometres of the next piece, and sets its driving time `tempoTratta_`. The piece is the rest of the
    /// leg, unless a break or a milestone comes earlier.
    int cutPiece(int left, double speed, Fine& why) {
        int km = left;
        pieceTime(km, speed);
        float arrival = f(d(ora_) + d(tempoTratta_));
        if (conPause_ && d(arrival) > d(ultimoBreak_) + intervallo_) {
            const int limit = std::max(1, lunghezza(speed, intervallo_));
            if (limit < km) {
                km = limit;
                why = Fine::Pausa;
                pieceTime(km, speed);
                arrival = f(d(ora_) + d(tempoTratta_));
            }
        }
        const auto cutAt = [this, speed, &km, &why](const Traguardo& milestone, Fine reason) {
            km = std::max(1, lunghezza(speed, d(milestone.ora) - d(ora_)));
            pieceTime(km, speed);
            why = reason;
        };
        if (!pranzoFatto_ && d(arrival) >= pranzo_.raggiunta) {
            cutAt(pranzo_, Fine::Pranzo);
        } else if (!cenaFatta_ && d(arrival) >= cena_.raggiunta) {
            cutAt(cena_, Fine::Cena);
            cenaFatta_ = true;
        } else if (d(arrival) >= notte_.raggiunta) {
            cutAt(notte_, Fine::Notte);
        }
        return km;
    }

    /// Adds a long rest if it is due. Rest days only move the calendar; they are noted on the last row but one.
    void longRest() {
        if (!conRiposi_ || d(ultimoRiposo_) + p_.riposoDopoGiorni > d(giuliano_))
            return;
        giuliano_ += static_cast<float>(p_.riposoGiorno);
        ultimoRiposo_ = giuliano_;
        if (result_.righe.size() >= 2)
            result_.righe[result_.righe.size() - 2].riposoDopo = true;
    }

    void milestones(RigaViandoria& row) {
        if (vicino(pranzo_)) {
            row.pranzo = true;
            pranzoFatto_ = true;
            ora_ = f(d(ora_) + d(p_.durataPranzo));
            ultimoBreak_ = ora_;
        }
        if (vicino(cena_)) {
            row.cena = true;
            cenaFatta_ = true;
            ora_ = f(d(ora_) + d(p_.durataCena));
            ultimoBreak_ = ora_;
        }
        if (vicino(notte_)) {
            row.notte = true;
            newMorning();
            ultimoBreak_ = ora_;
        }
        if (conPause_ && d(ora_) >= d(ultimoBreak_) + intervallo_) {
            const double n = Int((d(ora_) - d(ultimoBreak_)) / intervallo_);
            row.riposo = f(n * p_.riposoMinuti);
            ora_ = f(d(ora_) + n * p_.riposoMinuti);
            ultimoBreak_ = f(d(ultimoBreak_) + n * intervallo_);
            row.pausa = true;
        }
    }

    void sosta(int index, const RigaDiLavoro& row) {
        const float total = f(d(row.sostaFissa) + Int(d(row.sostaGuida) * d(coefficiente_) + 0.5));
        if (!(total > 0))
            return;
        const bool tomorrow = ora_ > p_.fineVisita;
        if (tomorrow) {
            ora_ = p_.inizioVisita;
            giuliano_ += 1;
        }
        const float dayBefore = giuliano_;
        const float begin = ora_;
        spend(total);
        mealsFromClock();
        RigaViandoria& written = add(RigaViandoria::Tipo::Sosta, index);
        written.sosta = total;
        written.inizio = begin;
        written.giornoInizio = dayBefore;
        written.sostaGuida = row.sostaGuida;
        written.domani = tomorrow;
        written.spezzata = giuliano_ > dayBefore;
        pranzoFatto_ = pranzoFatto_ || ora_ > p_.oraPranzo;
        cenaFatta_ = cenaFatta_ || ora_ > p_.oraCena;
    }

    /// Moves the clock by the length of a stop, over as many visiting days as that needs.
    void spend(float length) {
        const float start = ora_;
        ora_ = f(d(start) + d(length));
        if (d(ora_) < fineDelleVisite_ || !(p_.oreVisitaGiorno > 0))
            return;
        float left = length;
        ora_ = start;
        while (left != 0) {
            if (left >= p_.oreVisitaGiorno) {
                left = f(d(left) - d(p_.oreVisitaGiorno));
                giuliano_ += 1;
                continue;
            }
            ora_ = f(d(start) + d(left));
            if (d(ora_) >= fineDelleVisite_) {
                left = f(d(left) - (d(p_.fineVisita) - d(start)));
                ora_ = f(d(p_.inizioVisita) + d(left));
                giuliano_ += 1;
            }
            left = 0;
        }
    }

    const std::vector<RigaDiLavoro>& rows_;
    const ParametriSimulazione& p_;
    const float coefficiente_;
    const Traguardo pranzo_;
    const Traguardo cena_;
    const Traguardo notte_;
    const float fineDelPranzo_ = f(d(p_.oraPranzo) + d(p_.durataPranzo));
    const float fineDellaCena_ = f(d(p_.oraCena) + d(p_.durataCena));
    const double fineDelleVisite_ = d(p_.fineVisita) + p_.range / 3.0;
    const bool conPause_ = p_.riposoOre >= 1 && p_.riposoMinuti >= 1;
    const bool conRiposi_ = p_.riposoGiorno >= 1 && p_.riposoDopoGiorni >= 1;
    const double intervallo_ = p_.riposoOre * 100; ///< driving time between two breaks, hundredths of an hour
    Viandoria result_;

    float ora_ = 0;
    float giuliano_ = 0;
    float ultimoBreak_ = 0;
    float ultimoRiposo_ = 0;
    float tempoTratta_ = 0;
    bool pranzoFatto_ = false;
    bool cenaFatta_ = false;
};

} // namespace

Viandoria simulate(const std::vector<RigaDiLavoro>& rows, const ParametriSimulazione& with, float coefficiente,
                   const FermaRiga& stop, std::vector<RigaViandoria> memory) {
    return Prova(rows, with, coefficiente, std::move(memory)).walk(stop);
}

} // namespace vanzer
