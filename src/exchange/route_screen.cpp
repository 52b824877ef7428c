// SPDX-License-Identifier: MIT
#include "exchange/route_screen.h"

#include "core/leg_columns.h"
#include "core/text.h"
#include "exchange/chosen_file_screen.h"
#include "exchange/itn_filter.h"
#include "exchange/route_package.h"
#include "itinerary/leg_editor_screen.h"
#include "store/schema.h"
#include "trip/totals_screen.h"
#include "window/button_codes.h"
#include "window/modes.h"

namespace vanzer {

namespace {

bool emptyItinerary(const Form& form) {
    return form.mfgTab.cell(1, tappaLuogo).isEmpty();
}

/// Asks for a file. False if the user cancelled.
bool askForFile(Form& form, const QString& filter) {
    form.stato.NomeFileScambio = form.ports.files.open(filter);
    return !form.stato.NomeFileScambio.isEmpty();
}

void SalvaRigaItinerarioImportato(Form& form, const TappaImportata& leg) {
    Grid& grid = form.mfgTab;
    const int r = form.stato.RigaCorrente++;
    if (grid.rows() < r + 2)
        grid.setRows(r + 5);
    grid.setCell(r, tappaNumero, QString::number(r));
    grid.setCell(r, tappaLuogo, leg.luogo);
    grid.setCell(r, tappaStrada, leg.strade);
    grid.setCell(r, tappaKm, QString::number(leg.km));
    grid.setCell(r, tappaTipo, leg.autostrada ? QStringLiteral("A") : QStringLiteral("P"));
    grid.setCell(r, tappaKmProgressivi, QString::number(leg.kmProgressivo));
    if (leg.traghetto)
        grid.setCell(r, tappaSosta, QStringLiteral("00:") + form.cmbOra(8).text() + u':' + form.cmbMin(8).text());
}

void writeLegs(Form& form, const PercorsoImportato& route) {
    const SenzaRidisegno quiet(form.mfgTab);
    if (route.formato != Pacchetto::Autoroute)
        form.mfgTab.setRows(1);
    for (const TappaImportata& leg : route.tappe)
        SalvaRigaItinerarioImportato(form, leg);
}

std::vector<RigaPercorso> readLegs(const Grid& grid) {
    std::vector<RigaPercorso> legs;
    legs.reserve(static_cast<std::size_t>(grid.rows()));
    for (int r = 1; r < grid.rows(); ++r)
        legs.push_back({grid.cell(r, tappaLuogo), grid.cell(r, tappaStrada), chilometri(grid.cell(r, tappaKm))});
    return legs;
}

/// Writes the legs that remain, with their other cells, and keeps the last row.
void writeFolded(Grid& grid, const std::vector<RigaRimasta>& left) {
    std::vector<bool> marked;
    marked.reserve(left.size());
    for (const RigaRimasta& leg : left)
        marked.push_back(grid.marked(leg.riga, tappaSosta));
    const int row = grid.row();
    const int column = grid.col();
    const int rowSel = grid.rowSel();
    const int columnSel = grid.colSel();
    const int top = grid.topRow();
    const TestiTabella rows = grid.takeContents();
    TestiTabella folded;
    folded.setRows(static_cast<int>(left.size()) + 1);
    int to = 0;
    for (const RigaRimasta& leg : left) {
        folded.copyRow(to, rows, leg.riga - 1);
        folded.at(to, tappaLuogo) = leg.cella.luogo;
        folded.at(to, tappaStrada) = leg.cella.strade;
        folded.at(to, tappaKm) = QString::number(leg.cella.km);
        ++to;
    }
    folded.copyRow(to, rows, rows.rows() - 1);
    grid.setContents(std::move(folded));
    grid.select(row, column, rowSel, columnSel);
    grid.setTopRow(top);
    for (std::size_t i = 0; i < marked.size(); ++i)
        grid.setMarked(static_cast<int>(i) + 1, tappaSosta, marked[i]);
}

void renumber(Grid& grid) {
    for (int r = 1; r < grid.rows(); ++r) {
        if (!grid.cell(r, tappaNumero).isEmpty() || !grid.cell(r, tappaLuogo).isEmpty())
            grid.setCell(r, tappaNumero, QString::number(r));
    }
}

/// Reads the route list at NomeFileScambio into the table. Changes nothing if the format is unknown.
void CaricaDaPacchetto(Form& form) {
    form.frmframe(riquadroPulsantiTappe).setEnabled(true);
    StatoFinestra& s = form.stato;
    s.RigaCorrente = 1;
    const auto contents = readExchangeFile(form);
    if (!contents)
        return;
    const PercorsoImportato route = readPackage(*contents);
    if (route.formato == Pacchetto::Sconosciuto) {
        form.refuse(QStringLiteral("Attenzione!\n\nFile non riconosciuto!\n\n"
                                   "Attualmente sono riconosciuti:\n. MapPoint\n. Autoroute 66\n"
                                   ". Route 2000-2001\n\nContatta l'autore per l'eventuale abilitazione."));
        return;
    }
    writeLegs(form, route);
    CalcolaKmTempiItinerario(form);
    AggiornaNumeroRiga(form);
    s.PulsantiItinerario = pulsanti::tutti;
    AbilitaPulsantiMeta(form, pulsanti::nessunoMaiuscolo);
}

/// Reduces the legs to the stops of the file at NomeFileScambio. The totals are updated by the next calculation.
void SelezionaMeteValide(Form& form) {
    form.lstMete.clear();
    const bool unnumbered = form.domanda(QStringLiteral("Vuoi eliminare la numerazione finale delle tappe?"),
                                         QStringLiteral("Numerazione tappe"), Pulsanti::SiNo) == rispostaSi;
    const auto contents = readExchangeFile(form);
    if (!contents)
        return;
    const QStringList stops = readDestinations(*contents);
    form.lstMete.setEntries(stops);
    Grid& grid = form.mfgTab;
    const SenzaRidisegno quiet(grid);
    std::vector<RigaPercorso> legs = readLegs(grid);
    markDestinations(legs, stops);
    const QString lastPlace = legs.back().luogo;
    legs.pop_back();
    writeFolded(grid, foldLegs(legs, form.archivio.dimensioneCampo(store::Itinerari, u"Localita")));
    grid.setCell(grid.rows() - 1, tappaLuogo, lastPlace);
    if (unnumbered) {
        for (int r = 1; r < grid.rows(); ++r)
            grid.setCell(r, tappaLuogo, senzaNumerazione(grid.cell(r, tappaLuogo)));
    }
    renumber(grid);
}

} // namespace

void cmdMapPoint_Click(Form& form) {
    if (!emptyItinerary(form)) {
        form.refuse(QStringLiteral("Impossibile: sono presenti delle tappe!\n\n"
                                   "E' ammesso solo con itinerario vuoto.\n\n"
                                   "Se vuoi procedere con l'import da MapPoint,\n"
                                   "è necessario cancellare l'itinerario."));
        return;
    }
    if (!askForFile(form, QStringLiteral("File Excel salvato in modalità testo (*.TXT)|*.txt")))
        return;
    form.frmframe(riquadroPulsantiTappe).setEnabled(false);
    CaricaDaPacchetto(form);
}

void cmdSelezionaMete_Click(Form& form) {
    if (emptyItinerary(form)) {
        form.refuse(QStringLiteral("Impossibile: non sono presenti delle tappe!"), QStringLiteral("Revisione tappe"));
        return;
    }
    if (!askForFile(form, QStringLiteral("File export ITN in modalità testo (*.cvs)|*.csv")))
        return;
    form.frmframe(riquadroPulsantiTappe).setEnabled(false);
    SelezionaMeteValide(form);
    form.frmframe(riquadroPulsantiTappe).setEnabled(true);
}

} // namespace vanzer
