#include "schedule/simulation.h"

#include <algorithm>

#include "core/text.h"
#include "core/time_values.h"

namespace vanzer {

namespace {

using Fine = RigaViandoria::Fine;

double d(float x) {
    return static_cast<double>(x);
}
float f(double x) {
    return static_cast<float>(x);
}

/// Kilometres that fit into a time, in whole ones; no speed makes a piece longer than any trip.
int lunghezza(double speed, double hundredths) {
    constexpr double longest = 1000000;
    return arrotonda(std::min(Int(speed * hundredths / 100), longest));
}

class Prova {
  public:
    Prova(const std::vector<RigaDiLavoro>& rows, const ParametriSimulazione& with, float coefficiente)
        : rows_(rows), p_(with), coefficiente_(coefficiente) {
        result_.righe.reserve(rows.size() * 2);
        prepareStart();
    }

    Viandoria corre(const FermaRiga& stop) {
        for (std::size_t i = 0; i < rows_.size(); ++i) {
            if (stop && stop(static_cast<int>(i) + 1, result_)) {
                result_.esito = Viandoria::Esito::Interrotta;
                break;
            }
            riga(static_cast<int>(i));
            result_.giorni = daysSoFar();
            if (p_.giorniDesiderati != 0 && result_.giorni > p_.giorniDesiderati) {
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
    [[nodiscard]] int daysSoFar() const { return arrotonda(d(giuliano_) - d(p_.giulianoInizio) + 1); }
    [[nodiscard]] float fineDelPranzo() const { return f(d(p_.oraPranzo) + d(p_.durataPranzo)); }
    [[nodiscard]] float fineDellaCena() const { return f(d(p_.oraCena) + d(p_.durataCena)); }
    [[nodiscard]] bool conPause() const { return p_.riposoOre >= 1 && p_.riposoMinuti >= 1; }
    [[nodiscard]] bool vicino(float milestone) const { return QuasiUguale(ora_, milestone, p_.range); }

    /// A departure within a meal waits for its end, one behind the night is at the hour of activity of the same date.
    void prepareStart() {
        ora_ = p_.oraInizioViaggio;
        if (ora_ >= p_.oraPranzo && ora_ <= fineDelPranzo())
            ora_ = f(d(fineDelPranzo()) + 1);
        if (ora_ >= p_.oraCena && ora_ <= fineDellaCena())
            ora_ = f(d(fineDellaCena()) + 1);
        if (ora_ >= p_.oraNotte)
            ora_ = p_.oraColazione;
        mealsFromClock();
        ultimoBreak_ = ora_;
        giuliano_ = p_.giulianoInizio;
        ultimoRiposo_ = p_.giulianoInizio;
    }

    void mealsFromClock() {
        pranzoFatto_ = fineDelPranzo() < ora_;
        cenaFatta_ = fineDellaCena() < ora_;
    }

    void newMorning() {
        giuliano_ += 1;
        ora_ = p_.oraColazione;
        pranzoFatto_ = false;
        cenaFatta_ = false;
    }

    RigaViandoria& aggiunge(RigaViandoria::Tipo type, int work) {
        RigaViandoria& row = result_.righe.emplace_back();
        row.tipo = type;
        row.lavoro = work;
        row.ora = ora_;
        row.giuliano = giuliano_;
        return row;
    }

    void riga(int index) {
        const RigaDiLavoro& row = rows_[static_cast<std::size_t>(index)];
        if (row.traghetto)
            ++result_.traghetti;
        // The first row is the departure: it is driven once, with no kilometres too.
        if (row.km >= 1 || result_.righe.empty()) {
            guida(index, row);
            if (ora_ > p_.oraNotte)
                newMorning();
        }
        sosta(index, row);
        if (row.tipo == RigaDiLavoro::Tipo::Menzione)
            aggiunge(RigaViandoria::Tipo::Menzione, index);
        if (row.fineGiorno && ora_ > p_.oraColazione) {
            ora_ = p_.oraColazione;
            giuliano_ += 1;
            aggiunge(RigaViandoria::Tipo::NuovoGiorno, index);
        }
    }

    void pieceTime(int km, double speed) {
        if (speed != 0)
            tempoTratta_ = f(Int(km / speed * 100 + 0.5));
    }

    void guida(int index, const RigaDiLavoro& leg) {
        const double speed = p_.medie[static_cast<std::size_t>(leg.strada)];
        int left = leg.km;
        do {
            Fine why = Fine::Arrivo;
            const int km = cutPiece(left, speed, why);
            pieceTime(km, speed);
            longRest();
            ora_ = f(d(ora_) + d(tempoTratta_));
            kmTotali_ += km;
            RigaViandoria& row = aggiunge(RigaViandoria::Tipo::Tratto, index);
            row.km = km;
            row.kmTotali = kmTotali_;
            row.tempo = tempoTratta_;
            milestones(row);
            left -= km;
            row.verso = left != 0;
            row.fine = row.verso ? why : Fine::Arrivo;
            kmPerStrada_[static_cast<std::size_t>(leg.strada)] += km;
            result_.pannello = {row.ora, giuliano_, kmTotali_, result_.traghetti, kmPerStrada_};
        } while (left > 0);
    }

    /// Kilometres of the next piece: what is left of the leg, unless a break or a milestone comes before its end.
    int cutPiece(int left, double speed, Fine& why) {
        int km = left;
        pieceTime(km, speed);
        float arrival = f(d(ora_) + d(tempoTratta_));
        const int interval = p_.riposoOre * 100;
        if (conPause() && d(arrival) > d(ultimoBreak_) + interval) {
            const int limit = std::max(1, lunghezza(speed, interval));
            if (limit < km) {
                km = limit;
                why = Fine::Pausa;
            }
            pieceTime(km, speed);
            arrival = f(d(ora_) + d(tempoTratta_));
        }
        const auto reached = [this, arrival](float milestone) { return d(arrival) >= d(milestone) + p_.range; };
        const auto cutAt = [this, speed, &km, &why](float milestone, Fine reason) {
            km = std::max(1, lunghezza(speed, d(milestone) - d(ora_)));
            why = reason;
        };
        if (!pranzoFatto_ && reached(p_.oraPranzo)) {
            cutAt(p_.oraPranzo, Fine::Pranzo);
        } else if (!cenaFatta_ && reached(p_.oraCena)) {
            cutAt(p_.oraCena, Fine::Cena);
            cenaFatta_ = true;
        } else if (reached(p_.oraNotte)) {
            cutAt(p_.oraNotte, Fine::Notte);
        }
        return km;
    }

    /// Rest days move the calendar alone; their one trace is on the row before the last one written.
    void longRest() {
        if (p_.riposoGiorno < 1 || p_.riposoDopoGiorni < 1 || d(ultimoRiposo_) + p_.riposoDopoGiorni > d(giuliano_))
            return;
        giuliano_ += static_cast<float>(p_.riposoGiorno);
        ultimoRiposo_ = giuliano_;
        if (result_.righe.size() >= 2)
            result_.righe[result_.righe.size() - 2].riposoDopo = true;
    }

    void milestones(RigaViandoria& row) {
        if (vicino(p_.oraPranzo)) {
            row.pranzo = true;
            pranzoFatto_ = true;
            ora_ = f(d(ora_) + d(p_.durataPranzo));
            ultimoBreak_ = ora_;
        }
        if (vicino(p_.oraCena)) {
            row.cena = true;
            cenaFatta_ = true;
            ora_ = f(d(ora_) + d(p_.durataCena));
            ultimoBreak_ = ora_;
        }
        if (vicino(p_.oraNotte)) {
            row.notte = true;
            newMorning();
            ultimoBreak_ = ora_;
        }
        const int interval = p_.riposoOre * 100;
        if (conPause() && d(ora_) >= d(ultimoBreak_) + interval) {
            const double n = Int((d(ora_) - d(ultimoBreak_)) / interval);
            ora_ = f(d(ora_) + n * p_.riposoMinuti);
            ultimoBreak_ = f(d(ultimoBreak_) + n * interval);
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
        spend(total);
        mealsFromClock();
        RigaViandoria& written = aggiunge(RigaViandoria::Tipo::Sosta, index);
        const float unit = p_.oreVisitaGiorno > 0 ? p_.oreVisitaGiorno : giornoIntero;
        written.sosta = ricompone(scompone(total, unit), unit);
        written.sostaGuida = row.sostaGuida;
        written.domani = tomorrow;
        written.spezzata = giuliano_ > dayBefore;
        pranzoFatto_ = pranzoFatto_ || ora_ > p_.oraPranzo;
        cenaFatta_ = cenaFatta_ || ora_ > p_.oraCena;
    }

    /// Moves the clock through a stop, over as many visiting days as it takes.
    void spend(float length) {
        const float start = ora_;
        const double limit = d(p_.fineVisita) + p_.range / 3.0;
        ora_ = f(d(start) + d(length));
        if (d(ora_) < limit || !(p_.oreVisitaGiorno > 0))
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
            if (d(ora_) >= limit) {
                left = f(d(left) - (d(p_.fineVisita) - d(start)));
                ora_ = f(d(p_.inizioVisita) + d(left));
                giuliano_ += 1;
            }
            left = 0;
        }
    }

    const std::vector<RigaDiLavoro>& rows_;
    const ParametriSimulazione& p_;
    float coefficiente_;
    Viandoria result_;

    float ora_ = 0;
    float giuliano_ = 0;
    float ultimoBreak_ = 0;
    float ultimoRiposo_ = 0;
    float tempoTratta_ = 0;
    bool pranzoFatto_ = false;
    bool cenaFatta_ = false;
    int kmTotali_ = 0;
    std::array<int, 4> kmPerStrada_{};
};

} // namespace

Viandoria simula(const std::vector<RigaDiLavoro>& rows, const ParametriSimulazione& with, float coefficiente,
                 const FermaRiga& stop) {
    return Prova(rows, with, coefficiente).corre(stop);
}

} // namespace vanzer
