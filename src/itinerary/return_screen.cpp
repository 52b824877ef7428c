#include "itinerary/return_screen.h"

#include "core/text.h"
#include "itinerary/return_to_start.h"
#include "schedule/totals_screen.h"
#include "window/grid_layouts.h"

namespace vanzer {

namespace {

/// Moves the legs up over the rows without a place.
void packTable(Form& form) {
    Grid& grid = form.mfgTab;
    int& last = form.stato.NumeroTappe;
    last = 0;
    for (int r = 1; r < grid.rows(); ++r) {
        if (Trim(grid.cell(r, 1)).isEmpty())
            continue;
        if (++last == r)
            continue;
        grid.setCell(last, 0, testoNumero(last));
        grid.copyRow(r, last, 1);
    }
    for (int r = last + 1; r < grid.rows(); ++r)
        grid.clearRow(r, 0);
}

std::vector<RigaRitorno> readWayOut(const Form& form) {
    const Grid& grid = form.mfgTab;
    std::vector<RigaRitorno> legs;
    legs.reserve(static_cast<std::size_t>(form.stato.NumeroTappe));
    for (int r = 1; r <= form.stato.NumeroTappe; ++r)
        legs.push_back({grid.cell(r, 1), grid.cell(r, 2), grid.cell(r, 3), grid.cell(r, 4)});
    return legs;
}

void appendLegs(Form& form, const Ritorno& home) {
    Grid& grid = form.mfgTab;
    StatoViaggio& s = form.stato;
    grid.setRows(Maggiore(s.RigheMinime, grid.rows() + home.riga + 2));
    for (const RigaRitorno& leg : home.righe) {
        const int r = ++s.NumeroTappe;
        grid.setCell(r, 0, testoNumero(r));
        grid.setCell(r, 1, leg.luogo);
        grid.setCell(r, 2, leg.strada);
        grid.setCell(r, 3, leg.km);
        grid.setCell(r, 4, leg.tipoStrada);
    }
}

} // namespace

void cmdRitorno_Click(Form& form) {
    {
        const SenzaRidisegno quiet(form.mfgTab);
        packTable(form);
        const Ritorno home = ritornoAStart(readWayOut(form));
        if (home.riga > 0) {
            appendLegs(form, home);
            form.stato.RigaCorrente = home.riga;
        }
        CalcolaKmTempiItinerario(form);
    }
    SelezionaRiga(form, form.stato.RigaCorrente);
}

} // namespace vanzer
