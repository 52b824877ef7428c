// SPDX-License-Identifier: MIT
#include "itinerary/copy_screen.h"

#include "core/leg_columns.h"
#include "core/text.h"
#include "itinerary/copy.h"
#include "itinerary/leg_editor_screen.h"
#include "store/schema.h"
#include "trip/totals_screen.h"
#include "window/button_codes.h"
#include "window/confirmation.h"
#include "window/grid_layouts.h"
#include "window/modes.h"

namespace vanzer {

namespace {

constexpr int scegliMeta = 3;
constexpr int scegliTappa = 4;
constexpr int largoAccantoAllaCopia = 7950;
constexpr int ultimaColonna = 6;
/// Columns of the list. It holds destinations first, then the legs of one of them.
enum ColonnaMete { metaNumero, metaNome, metaNazione, metaCodice };
enum ColonnaCopia { copiaNumero, copiaLuogo, copiaStrada, copiaKm, copiaTipo, copiaSosta };

store::Recordset records(Form& form, int table, std::vector<store::Condition> where, const char16_t* order) {
    return {*form.archivio.Db(0), {store::TabelleNomi(table), std::move(where), {{QString::fromUtf16(order)}}}};
}

store::Recordset legsOf(Form& form, const QString& code) {
    return records(form, store::Itinerari, {{QStringLiteral("CodiceMeta"), store::Condition::Test::Equal, code}},
                   u"Sequenza");
}

/// Lists the destinations. Of neighbours with the same name only the first is looked at. Those without legs are left
/// out.
void listDestinations(Form& form, store::Recordset& destinations) {
    Grid& list = form.mfgCopia;
    const SenzaRidisegno quiet(list);
    int row = 0;
    QString previous;
    for (; !destinations.EOF_(); destinations.MoveNext()) {
        const QString name = Trim(destinations.testo(u"Localita"));
        const QString code = destinations.testo(u"CodiceMeta");
        if (uguale(name, std::exchange(previous, name)) || legsOf(form, code).EOF_())
            continue;
        if (++row >= list.rows() - 2)
            list.setRows(list.rows() + 4);
        list.setCell(row, metaNumero, QString::number(row));
        list.setCell(row, metaNome, name);
        list.setCell(row, metaNazione, Trim(destinations.testo(u"Nazione")));
        list.setCell(row, metaCodice, code);
    }
    list.setRows(row + 1);
}

/// Enables cmdInsEsegui(0) once both ends are chosen.
void enableInsertion(Form& form) {
    form.cmdInsEsegui(0).setEnabled(!form.txtInsNum(0).text().isEmpty() && !form.txtInsNum(1).text().isEmpty());
}

void listLegs(Form& form, const QString& code) {
    static constexpr std::array<const char16_t*, 6> fields{u"Sequenza",   u"Localita",   u"NomeStrada",
                                                           u"Chilometri", u"TipoStrada", u"TempoSosta"};
    TestiTabella rows;
    for (store::Recordset legs = legsOf(form, code); !legs.EOF_(); legs.MoveNext()) {
        const int row = rows.addRow();
        for (int column = 0; const char16_t* const field : fields)
            rows.at(row, column++) = Trim(legs.testo(QString::fromUtf16(field)));
        rows.at(row, copiaKm) = migliaia(Val(rows.text(row, copiaKm)));
    }
    form.mfgCopia.setContents(std::move(rows));
}

/// Shows the stretch chosen so far, including the current row.
void SelezioneTappeDuplica(Form& form) {
    const auto number = [&form](int i) { return roundToInt(Val(form.txtInsNum(i).text())); };
    const Blocco chosen = bloccoScelto(number(0), number(1), form.stato.RigaCopia);
    form.mfgCopia.select(chosen.prima, 0, chosen.ultima, ultimaColonna);
    form.mfgCopia.setRowAtHand(form.stato.RigaCopia);
    enableInsertion(form);
}

/// Makes the destination in the current row the source.
void RicercaDiUnaSingolaTappa(Form& form) {
    const Grid& list = form.mfgCopia;
    const int row = form.stato.RigaCopia;
    const QString code = list.cell(row, metaCodice);
    form.frmframe(riquadroTrattoCopia).setVisible(true);
    form.txtInsTappa(0).setText(list.cell(row, metaNome));
    form.txtInsTappa(1).setText(form.txtTappa.text());
    for (const auto* const fields : {&form.txtInsNum, &form.txtInsLoc, &form.txtInsNS, &form.txtInsKm}) {
        for (TextBox* const field : *fields)
            field->setText({});
    }
    form.stato.PulsantiMeta = pulsanti::nessuno;
    listLegs(form, code);
    form.stato.RigaCopia = 1;
    SelezioneTappeDuplica(form);
}

std::vector<RigaSorgente> readSource(const Grid& list) {
    std::vector<RigaSorgente> legs;
    legs.reserve(static_cast<std::size_t>(list.rows()));
    for (int r = 1; r < list.rows(); ++r)
        legs.push_back({list.cell(r, copiaLuogo), list.cell(r, copiaStrada), list.cell(r, copiaKm),
                        list.cell(r, copiaTipo), list.cell(r, copiaSosta)});
    return legs;
}

void insertStretch(Form& form) {
    form.mfgCopia.setRows(form.mfgCopia.rows() + 1);
    Grid& grid = form.mfgTab;
    int& row = form.stato.RigaCorrente;
    const std::vector<RigaSorgente> legs =
        copyStretch(readSource(form.mfgCopia), roundToInt(Val(form.txtInsNum(0).text())),
                    roundToInt(Val(form.txtInsNum(1).text())), form.chkInsSoste.value());
    const SenzaRidisegno quiet(grid);
    if (!grid.cell(row, tappaLuogo).isEmpty())
        ++row;
    InserisciRigheItinerario(form, static_cast<int>(legs.size()));
    --row;
    for (const RigaSorgente& leg : legs) {
        ++row;
        if (row + 2 > grid.rows())
            grid.setRows(row + 4);
        grid.setCell(row, tappaNumero, QString::number(row));
        grid.setCell(row, tappaLuogo, leg.luogo);
        grid.setCell(row, tappaStrada, leg.strada);
        grid.setCell(row, tappaKm, leg.km);
        grid.setCell(row, tappaTipo, leg.tipoStrada);
        grid.setCell(row, tappaSosta, leg.sosta);
    }
}

void showSource(Form& form, bool on) {
    form.mfgCopia.setVisible(on);
    form.frmframe(riquadroCopia).setVisible(on);
}

void RinunciaDuplicaItinerario(Form& form) {
    PulisciFinestre(form);
    form.mfgTab.setWidth(largoAccantoAllaCopia);
    form.frmframe(riquadroTappe).setVisible(true);
    form.stato.PulsantiItinerario = pulsanti::tutti;
    AbilitaPulsantiMeta(form, pulsanti::tutti);
}

} // namespace

void cmdDuplica_Click(Form& form) {
    StatoFinestra& s = form.stato;
    s.ModoRicerca = scegliMeta;
    while (s.RigaCorrente > 0 && form.mfgTab.cell(s.RigaCorrente, tappaLuogo).isEmpty())
        --s.RigaCorrente;
    s.RigaCorrente = Maggiore(1, s.RigaCorrente);
    SelezionaRiga(form, s.RigaCorrente);
    AggiornaNumeroRiga(form);
    s.PulsantiItinerario = pulsanti::soloFine;
    AbilitaPulsantiMeta(form, pulsanti::nessuno);
    form.cmdMapPoint.setEnabled(false);
    form.mfgCopia.clearCells();
    form.mfgCopia.setRows(s.RigheMinime);
    ImpostaGriglia(form, Disposizione::Mete);
    store::Recordset destinations = records(form, store::MeteVanzer, {}, u"Localita");
    if (destinations.EOF_()) {
        form.refuse(QStringLiteral("Non trovate mète memorizzate"));
        return;
    }
    listDestinations(form, destinations);
    showSource(form, true);
    form.setFocus(form.mfgCopia);
}

void mfgCopia_Click(Form& form) {
    StatoFinestra& s = form.stato;
    const int row = form.mfgCopia.row();
    if (row < 1 || form.mfgCopia.cell(row, metaNome).isEmpty())
        return;
    s.RigaCopia = row;
    if (s.ModoRicerca == scegliMeta) {
        form.frmframe(riquadroTappe).setEnabled(false);
        ImpostaGriglia(form, Disposizione::TappeDaCopiare);
        RicercaDiUnaSingolaTappa(form);
        s.ModoRicerca = scegliTappa;
    } else if (s.ModoRicerca == scegliTappa) {
        SelezioneTappeDuplica(form);
    }
}

void mfgCopia_Mark(Form& form) {
    if (form.stato.ModoRicerca == scegliTappa)
        mfgCopia_Click(form);
}

void cmdAssegna_Click(Form& form, int i) {
    const Grid& list = form.mfgCopia;
    const int row = form.stato.RigaCopia;
    form.txtInsLoc(i).setText(list.cell(row, copiaLuogo));
    form.txtInsNS(i).setText(list.cell(row, copiaStrada));
    form.txtInsKm(i).setText(list.cell(row, copiaKm));
    form.txtInsNum(i).setText(list.cell(row, copiaNumero));
    SelezioneTappeDuplica(form);
}

void cmdInsEsegui_Click(Form& form, int i) {
    if (i != 0) {
        RinunciaDuplicaItinerario(form);
        form.frmframe(riquadroTappe).setEnabled(true);
        return;
    }
    BoxConferma(form, QStringLiteral("IP"));
    if (form.stato.Risposta == rispostaSi) {
        showSource(form, false);
        insertStretch(form);
        form.frmframe(riquadroTappe).setEnabled(true);
        form.frmframe(riquadroTrattoCopia).setVisible(false);
    } else {
        showSource(form, true);
    }
    form.stato.PulsantiItinerario = pulsanti::tutti;
    AbilitaPulsantiComando(form);
    CalcolaKmTempiItinerario(form);
    AggiornaNumeroRiga(form);
    showRunningKm(form);
    form.yield();
}

} // namespace vanzer
