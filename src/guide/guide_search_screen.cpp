// SPDX-License-Identifier: MIT
#include "core/text.h"
#include "guide/entries.h"
#include "guide/guide_screen.h"
#include "guide/typed_entry_screen.h"
#include "trip/destination_screen.h"
#include "window/button_codes.h"
#include "window/changes.h"
#include "window/modes.h"

namespace vanzer {

namespace {

constexpr int altezzaGrigliaTappe = 4055;
constexpr int larghezzaNome = 30;

void enableEditor(Form& form, bool on) {
    form.frmframe(riquadroGuida).setEnabled(on);
    form.mfgTab.setEnabled(on);
}

/// Offers each place of the grid once, with its row after the name.
void offerPlaces(Form& form) {
    QStringList places;
    QString above;
    for (int r = 1; r < form.mfgTab.rows(); ++r) {
        const QString& place = form.mfgTab.cell(r, guidaLuogo);
        if (!Trim(place).isEmpty() && !uguale(place, above))
            places << AggStr(place, larghezzaNome, QStringLiteral(" ")) + Zero(r, 4);
        above = place;
    }
    form.cmbRicercaTappa.place(450, 3100, 4200, 3400);
    form.cmbRicercaTappa.clear();
    form.cmbRicercaTappa.setEntries(places);
    form.cmbRicercaTappa.setVisible(true);
}

/// Moves to the only entry of that group. False if there is none, or more than one.
bool moveToOnly(store::Recordset& records, const QString& group) {
    const auto next = [&] {
        while (!records.EOF_() && !uguale(records.testo(u"Gruppo"), group))
            records.MoveNext();
        return !records.EOF_();
    };
    if (!next())
        return false;
    records.MoveNext();
    if (next())
        return false;
    records.MoveFirst();
    return next();
}

/// Stores the group of a row with its marks sorted. Does nothing if the row's entry can't be told from another one.
void sortGroup(Form& form, int row) {
    using enum store::Condition::Test;
    const Grid& grid = form.mfgTab;
    const QString& group = grid.cell(row, guidaGruppo);
    const QString sorted = gruppoOrdinato(group);
    if (Trim(group).isEmpty() || uguale(sorted, Trim(group)))
        return;
    // The group is compared here and isn't part of the query. Otherwise the search would use the index of the groups,
    // which many entries share.
    const QString places = LikeTesto(grid.cell(row, guidaLuogo)) + u'*';
    const QString description = LikeTesto(grid.cell(row, guidaDescrizione));
    form.archivio.RecordSetImposta(
        0, store::GuidaCitta,
        {store::TabelleNomi(store::GuidaCitta),
         {{QStringLiteral("Localita"), Like, places}, {QStringLiteral("Descrizione"), Like, description}},
         {}});
    store::Recordset& records = form.archivio.Rs(store::GuidaCitta);
    if (!moveToOnly(records, group))
        return;
    records.Edit();
    records.write(u"Gruppo", sorted);
    records.Update();
}

} // namespace

void cmdFind_Click(Form& form) {
    form.stato.FiltroGuida = form.txtGDescr.text();
    form.stato.ModoRicerca = 2;
    enableEditor(form, false);
    CercaLocalitaGuida(form);
}

void CercaLocalitaGuida(Form& form) {
    if (form.stato.FiltroGuida.isEmpty()) {
        offerPlaces(form);
        return;
    }
    CreaLaListadellaGuida(form);
    enableEditor(form, true);
}

void RinunciaRicercaGuida(Form& form) {
    form.cmbRicercaTappa.setVisible(false);
    enableEditor(form, true);
    form.setFocus(form.txtGDescr);
}

void cmdFineInserimento_Click(Form& form) {
    int row = form.mfgTab.row();
    if (!leaveEntry(form, row))
        return;
    for (int r = 1; r < form.mfgTab.rows(); ++r)
        sortGroup(form, r);
    form.archivio.storeSoFar();
    if (!leaveFields(form))
        return;
    RicaricaItinerario(form);
    form.mfgTab.setHeight(altezzaGrigliaTappe);
    form.frmframe(riquadroGuida).setVisible(false);
    AbilitaPulsantiMeta(form, pulsanti::tutti);
    form.yield();
    form.stato.ModoGuida = false;
    form.stato.ModoRicerca = 0;
}

} // namespace vanzer
