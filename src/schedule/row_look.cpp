// SPDX-License-Identifier: MIT
#include "schedule/row_look.h"

#include <algorithm>

#include "core/leg_columns.h"
#include "guide/entries.h"
#include "schedule/rows.h"

namespace vanzer {

namespace {

using Tipo = AspettoRiga::Tipo;
using Cella = std::function<const QString&(int row, int column)>;

bool isSchedule(int rows, const Cella& cell) {
    for (int r = 1; r < rows; ++r) {
        if (!cell(r, colGiorno).isEmpty())
            return true;
    }
    return false;
}

void legLooks(std::vector<AspettoRiga>& looks, const Cella& cell) {
    for (int r = 1; r < static_cast<int>(looks.size()); ++r) {
        if (cell(r, colTappa).isEmpty())
            continue;
        AspettoRiga& look = looks[static_cast<std::size_t>(r)];
        look.tipo = Tipo::Tappa;
        look.fineGiornata = cell(r, tappaSosta).startsWith(u'*');
    }
}

void guideLooks(std::vector<AspettoRiga>& looks, const Cella& cell, std::span<const QString> categories) {
    for (int r = 1; r < static_cast<int>(looks.size()); ++r) {
        AspettoRiga& look = looks[static_cast<std::size_t>(r)];
        switch (tipoRigaGuida(cell(r, guidaLuogo), cell(r, guidaSegno))) {
        case TipoRigaGuida::Luogo: look.tipo = Tipo::Luogo; break;
        case TipoRigaGuida::Voce:
            look.tipo = Tipo::Voce;
            look.categoria = std::max(CodiceTipoGuida(categories, cell(r, guidaTipo)), 0);
            break;
        default: break;
        }
    }
}

class AspettoViandoria {
  public:
    AspettoViandoria(std::vector<AspettoRiga>& looks, const Cella& cell) : looks_(looks), cell_(cell) {}

    void write() {
        for (int r = 1; r < static_cast<int>(looks_.size()); ++r)
            riga(r);
        endDay();
    }

  private:
    void riga(int r) {
        AspettoRiga& look = looks_[static_cast<std::size_t>(r)];
        look.viandoria = true;
        look.tipo = kind(r);
        if (look.tipo != Tipo::Vuota && !totals_) {
            followDate(cell_(r, colData));
            lastOfDay_ = &look;
        }
        look.giorno = day_;
    }

    [[nodiscard]] Tipo kind(int r) {
        if (!cell_(r, colNumero).isEmpty())
            return Tipo::Tappa;
        const QString& place = cell_(r, colTappa);
        if (place.isEmpty())
            return Tipo::Vuota;
        totals_ = totals_ || place == titoloTotali;
        if (totals_)
            return place.startsWith(u'\t') ? Tipo::Totale : Tipo::TitoloTotale;
        return place == testoNuovoGiorno ? Tipo::NuovoGiorno : Tipo::Sosta;
    }

    void followDate(const QString& date) {
        // the rows of a day mostly share one text, which needn't be read again
        if (date.isEmpty() || date.constData() == date_.constData() || date == date_)
            return;
        if (!date_.isEmpty()) {
            endDay();
            ++day_;
        }
        date_ = date;
    }

    void endDay() {
        if (lastOfDay_ != nullptr)
            lastOfDay_->fineGiornata = true;
    }

    std::vector<AspettoRiga>& looks_;
    const Cella& cell_;
    QString date_;
    int day_ = 0;
    bool totals_ = false;
    AspettoRiga* lastOfDay_ = nullptr;
};

} // namespace

std::vector<AspettoRiga> aspettoRighe(int rows, const Cella& cell, std::span<const QString> categories) {
    std::vector<AspettoRiga> looks(static_cast<std::size_t>(std::max(rows, 1)));
    if (cell(0, guidaGruppo) == testaGruppo)
        guideLooks(looks, cell, categories);
    else if (isSchedule(rows, cell))
        AspettoViandoria(looks, cell).write();
    else
        legLooks(looks, cell);
    return looks;
}

} // namespace vanzer
