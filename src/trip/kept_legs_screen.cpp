// SPDX-License-Identifier: MIT
#include "trip/kept_legs_screen.h"

#include "core/leg_columns.h"
#include "core/text.h"
#include "trip/totals_screen.h"

namespace vanzer {

namespace {

/// The rows of the legs: in the table, or in the kept copy while a schedule fills the table.
class Righe {
  public:
    explicit Righe(const Form& form)
        : kept_(form.tappeConservate ? &*form.tappeConservate : nullptr), grid_(form.mfgTab),
          count_(kept_ != nullptr ? kept_->rows() : grid_.rows() - 1) {
        while (count_ > 0 && blank(count_ - 1))
            --count_;
    }
    [[nodiscard]] std::size_t count() const { return static_cast<std::size_t>(count_); }
    /// `row` counts from 0, `cell` is an index into TappaTenuta.
    [[nodiscard]] const QString& text(std::size_t row, std::size_t cell) const {
        const int r = static_cast<int>(row);
        return kept_ != nullptr ? kept_->text(r, colonneTenute[cell]) : grid_.cell(r + 1, colonneTenute[cell]);
    }
    [[nodiscard]] TappeTenute all() const {
        TappeTenute legs(count());
        for (std::size_t row = 0; row < legs.size(); ++row) {
            for (std::size_t cell = 0; cell < colonneTenute.size(); ++cell)
                legs[row][cell] = text(row, cell);
        }
        return legs;
    }
    [[nodiscard]] bool are(const TappeTenute& legs) const {
        if (legs.size() != count())
            return false;
        for (std::size_t row = 0; row < legs.size(); ++row) {
            for (std::size_t cell = 0; cell < colonneTenute.size(); ++cell) {
                if (legs[row][cell] != text(row, cell))
                    return false;
            }
        }
        return true;
    }

  private:
    [[nodiscard]] bool blank(int row) const {
        for (std::size_t cell = 0; cell < colonneTenute.size(); ++cell) {
            if (!text(static_cast<std::size_t>(row), cell).isEmpty())
                return false;
        }
        return true;
    }

    const TestiTabella* kept_;
    const Grid& grid_;
    int count_;
};

/// False while the table shows the guide, or after an exchange has emptied it.
bool holdsLegs(const Form& form) {
    return form.tappeConservate || !(form.stato.ModoGuida || form.frmframe(riquadroScambio).visible());
}

} // namespace

void rememberLegs(Form& form) {
    form.tappeMemorizzate.reset();
    if (form.interattiva)
        form.tappeMemorizzate = Righe(form).all();
}

TappeTenute tappeInVista(const Form& form) {
    return holdsLegs(form) ? Righe(form).all() : form.tappeMemorizzate.value_or(TappeTenute());
}

bool tappeCambiate(const Form& form) {
    const bool worked =
        form.tappeConservate || form.frmframe(riquadroTappe).visible() || form.frmframe(riquadroTratto).visible();
    return form.tappeMemorizzate && worked && holdsLegs(form) && !Righe(form).are(*form.tappeMemorizzate);
}

void putLegs(Form& form, const TappeTenute& legs) {
    constexpr std::size_t place = 0;
    constexpr std::size_t stop = 4;
    const int rows = static_cast<int>(legs.size());
    TestiTabella table;
    table.setRows(Maggiore(rows + 2, form.stato.RigheMinime) - 1);
    for (int row = 0; row < rows; ++row) {
        const TappaTenuta& leg = legs[static_cast<std::size_t>(row)];
        if (!leg[place].isEmpty())
            table.at(row, tappaNumero) = QString::number(row + 1);
        for (std::size_t cell = 0; cell < colonneTenute.size(); ++cell)
            table.at(row, colonneTenute[cell]) = leg[cell];
    }
    form.tappeConservate.reset();
    {
        const SenzaRidisegno quiet(form.mfgTab);
        form.mfgTab.setContents(std::move(table));
        for (int row = 0; row < rows; ++row)
            form.mfgTab.setMarked(row + 1, colonneTenute[stop],
                                  legs[static_cast<std::size_t>(row)][stop].startsWith(u'*'));
    }
    form.stato.NumeroTappe = rows;
    CalcolaKmTempiItinerario(form);
}

} // namespace vanzer
