// SPDX-License-Identifier: MIT
#include "trip/totals_screen.h"

#include "core/leg_columns.h"
#include "core/text.h"
#include "core/time_values.h"
#include "trip/parameter_fields_screen.h"
#include "trip/totals.h"
#include "trip/trip_numbers.h"

namespace vanzer {

namespace {

constexpr float unGiornoDi99Ore = 9900;

Tratto legOf(const Grid& grid, int row) {
    return {chilometri(grid.cell(row, tappaKm)), indiceStrada(grid.cell(row, tappaTipo)),
            contains(grid.cell(row, tappaStrada), u"TRAGH")};
}

/// Reads the leg of a row from the table. A row without a place has none, and its cells are blanked.
std::optional<Tratto> readLeg(Grid& grid, int row) {
    if (!grid.cell(row, tappaLuogo).isEmpty())
        return legOf(grid, row);
    grid.clearRow(row, 0);
    return {};
}

/// Writes the running totals from a row on. A leg without kilometres keeps its texts.
void writeRunningTexts(Grid& grid, const TotaliTabella& totals, int first) {
    const SenzaRidisegno quiet(grid);
    float km = 0;
    for (int row = 1; row < grid.rows(); ++row) {
        const std::optional<Tratto>& leg = totals.tratto(row);
        if (!leg || leg->km == 0)
            continue;
        km += static_cast<float>(leg->km);
        if (row < first)
            continue;
        grid.setCell(row, tappaTempo, ghmSenzaGiorni(totals.tempo(row), unGiornoDi99Ore));
        grid.setCell(row, tappaKmProgressivi, migliaiaZero(static_cast<double>(km)));
    }
}

void workOutAll(Form& form, const Medie& speeds) {
    Grid& grid = form.mfgTab;
    const SenzaRidisegno quiet(grid);
    TotaliTabella::Righe legs(static_cast<std::size_t>(grid.rows()));
    for (int r = 1; r < grid.rows(); ++r)
        legs[static_cast<std::size_t>(r)] = readLeg(grid, r);
    form.totali->recalculate(std::move(legs), speeds);
    writeRunningTexts(grid, *form.totali, 1);
}

/// Updates the totals by the rows that have changed. False if these aren't known.
bool workOutChanges(Form& form, const Medie& speeds) {
    Grid& grid = form.mfgTab;
    const std::optional<std::vector<int>> rows = grid.takeChangedRows();
    if (!rows || form.totali->medie() != speeds)
        return false;
    if (rows->empty())
        return true;
    for (const int row : *rows) {
        if (!form.totali->change(row, readLeg(grid, row)))
            return false;
    }
    writeRunningTexts(grid, *form.totali, rows->front());
    return true;
}

void showPanel(Form& form, const TotaliItinerario& totals) {
    const bool anyKilometres = totals.km[4] != 0;
    for (int i = 0; i < 5; ++i) {
        const auto type = static_cast<std::size_t>(i);
        const bool shown = totals.km[type] != 0;
        form.txtKmTot(i).setText(shown ? migliaiaZero(static_cast<double>(totals.km[type])) : QString());
        form.txtTempo(i).setText(shown ? ghmCentesimi2Stringa(totals.tempo[type], form.viaggio->OreGuidaGiorno)
                                       : QString());
    }
    form.txtTragh.setText(anyKilometres || totals.traghetti != 0 ? QString::number(totals.traghetti) : QString());
}

void offerDays(Form& form, bool anyKilometres) {
    NumeriViaggio& s = *form.viaggio;
    s.GiorniDesiderati = roundToInt(Val(form.cmbGiorni.text()));
    const int least = anyKilometres ? giorniMinimi(form.txtTempo(4).text()) : 0;
    form.cmbGiorni.setEntries(giorniOfferti(least, anyKilometres));
    if (s.GiorniDesiderati != 0 && s.GiorniDesiderati < least)
        s.GiorniDesiderati = least;
    form.cmbGiorni.setText(Zero(s.GiorniDesiderati, 3));
}

} // namespace

int chilometri(const QString& cell) {
    return cell.contains(u'.') ? roundToInt(Val(QString(cell).remove(u'.'))) : roundToInt(Val(cell));
}

Medie medieMostrate(const Form& form) {
    Medie speeds{};
    for (int i = 0; i < 4; ++i)
        speeds[static_cast<std::size_t>(i)] = Val(form.cmbMediaKm(i).text());
    return speeds;
}

void CalcolaKmTempiItinerario(Form& form) {
    ControllaVariabiliConvertite(form);
    const Medie speeds = medieMostrate(form);
    if (!workOutChanges(form, speeds))
        workOutAll(form, speeds);
    (void)form.mfgTab.takeChangedRows(); // the cells written above are no changes of the user
    const TotaliItinerario& totals = form.totali->totali();
    form.viaggio->NumeroTraghetti = totals.traghetti;
    showPanel(form, totals);
    offerDays(form, totals.km[4] != 0);
}

} // namespace vanzer
