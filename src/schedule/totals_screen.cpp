#include "schedule/totals_screen.h"

#include "core/text.h"
#include "core/time_values.h"
#include "window/parameters.h"

namespace vanzer {

namespace {

constexpr float unGiornoDi99Ore = 9900;

struct Tratti {
    std::vector<Tratto> legs;
    std::vector<int> rows; ///< the row of each leg
};

/// Rows without a place are blanked on the way.
Tratti readStretches(Form& form) {
    Grid& grid = form.mfgTab;
    Tratti read;
    for (int r = 1; r < grid.rows(); ++r) {
        if (grid.cell(r, 1).isEmpty()) {
            grid.clearRow(r, 0);
            continue;
        }
        read.legs.push_back(
            {chilometri(grid.cell(r, 3)), indiceStrada(grid.cell(r, 4)), contiene(grid.cell(r, 2), u"TRAGH")});
        read.rows.push_back(r);
    }
    return read;
}

void showRunningColumns(Form& form, const Tratti& read, const TotaliItinerario& totals) {
    for (std::size_t i = 0; i < read.rows.size(); ++i) {
        if (read.legs[i].km == 0)
            continue;
        const auto& row = totals.righe[i];
        form.mfgTab.setCell(read.rows[i], 6, ghmSenzaGiorni(row.tempo, unGiornoDi99Ore));
        form.mfgTab.setCell(read.rows[i], 5, migliaiaZero(static_cast<double>(row.kmProgressivi)));
    }
}

void showPanel(Form& form, const TotaliItinerario& totals) {
    const bool anyKilometres = totals.km[4] != 0;
    for (int i = 0; i < 5; ++i) {
        const auto type = static_cast<std::size_t>(i);
        const bool shown = totals.km[type] != 0;
        form.txtKmTot(i).setText(shown ? migliaiaZero(static_cast<double>(totals.km[type])) : QString());
        form.txtTempo(i).setText(shown ? ghmCentesimi2Stringa(totals.tempo[type], form.stato.OreGuidaGiorno)
                                       : QString());
    }
    form.txtTragh.setText(anyKilometres || totals.traghetti != 0 ? QString::number(totals.traghetti) : QString());
}

void offerDays(Form& form, bool anyKilometres) {
    StatoViaggio& s = form.stato;
    s.GiorniDesiderati = arrotonda(Val(form.cmbGiorni.text()));
    const int least = anyKilometres ? giorniMinimi(form.txtTempo(4).text()) : 0;
    form.cmbGiorni.setEntries(giorniOfferti(least, anyKilometres));
    if (s.GiorniDesiderati != 0 && s.GiorniDesiderati < least)
        s.GiorniDesiderati = least;
    form.cmbGiorni.setText(Zero(s.GiorniDesiderati, 3));
}

} // namespace

int chilometri(const QString& cell) {
    return cell.contains(u'.') ? arrotonda(Val(QString(cell).remove(u'.'))) : arrotonda(Val(cell));
}

Medie medieMostrate(const Form& form) {
    Medie speeds{};
    for (int i = 0; i < 4; ++i)
        speeds[static_cast<std::size_t>(i)] = Val(form.cmbMediaKm(i).text());
    return speeds;
}

void CalcolaKmTempiItinerario(Form& form) {
    ControllaVariabiliConvertite(form);
    const SenzaRidisegno quiet(form.mfgTab);
    const Tratti read = readStretches(form);
    const TotaliItinerario totals = calcolaTotali(read.legs, medieMostrate(form));
    form.stato.NumeroTraghetti = totals.traghetti;
    showRunningColumns(form, read, totals);
    showPanel(form, totals);
    offerDays(form, totals.km[4] != 0);
}

} // namespace vanzer
