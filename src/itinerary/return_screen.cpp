// SPDX-License-Identifier: MIT
#include "itinerary/return_screen.h"

#include "core/leg_columns.h"
#include "core/text.h"
#include "itinerary/return_to_start.h"
#include "trip/totals_screen.h"
#include "window/grid_layouts.h"

namespace vanzer {

namespace {

/// Moves the legs up so that no row without a place lies between them.
void packTable(Form& form) {
    Grid& grid = form.mfgTab;
    int& last = form.stato.NumeroTappe;
    last = 0;
    for (int r = 1; r < grid.rows(); ++r) {
        if (Trim(QStringView(grid.cell(r, tappaLuogo))).isEmpty())
            continue;
        if (++last == r)
            continue;
        grid.setCell(last, tappaNumero, QString::number(last));
        grid.copyRow(r, last, 1);
    }
    for (int r = last + 1; r < grid.rows(); ++r)
        grid.clearRow(r, 0);
}

std::vector<QStringView> places(const Form& form) {
    std::vector<QStringView> names;
    names.reserve(static_cast<std::size_t>(form.stato.NumeroTappe));
    for (int r = 1; r <= form.stato.NumeroTappe; ++r)
        names.emplace_back(form.mfgTab.cell(r, tappaLuogo));
    return names;
}

void appendLegs(Form& form, const Ritorno& home) {
    Grid& grid = form.mfgTab;
    StatoFinestra& s = form.stato;
    grid.setRows(Maggiore(s.RigheMinime, grid.rows() + home.riga + 2));
    for (const PassoRitorno& leg : home.passi) {
        const int r = ++s.NumeroTappe;
        grid.setCell(r, tappaNumero, QString::number(r));
        grid.setCell(r, tappaLuogo, grid.cell(leg.luogo, tappaLuogo));
        for (const int column : {2, 3, 4})
            grid.setCell(r, column, grid.cell(leg.strada, column));
    }
}

} // namespace

void cmdRitorno_Click(Form& form) {
    {
        const SenzaRidisegno quiet(form.mfgTab);
        packTable(form);
        const Ritorno home = ritornoAStart(places(form));
        if (home.riga > 0) {
            appendLegs(form, home);
            form.stato.RigaCorrente = home.riga;
        }
        CalcolaKmTempiItinerario(form);
    }
    SelezionaRiga(form, form.stato.RigaCorrente);
}

} // namespace vanzer
