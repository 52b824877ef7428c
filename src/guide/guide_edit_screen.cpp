// SPDX-License-Identifier: MIT
#include "core/place_name.h"
#include "core/text.h"
#include "guide/entries.h"
#include "guide/guide_screen.h"
#include "guide/typed_entry_screen.h"
#include "itinerary/leg_editor_screen.h"
#include "trip/destination_screen.h"

namespace vanzer {

namespace {

constexpr int righeInVista = 13;

QString cellOfRow(const Form& form, ColonnaGuida column) {
    return form.mfgTab.cell(form.stato.RigaCorrente, column);
}

QString placeOfRow(const Form& form) {
    return form.stato.RigaCorrente < 1 ? QString() : Trim(RiPulisceNomeLocalita(cellOfRow(form, guidaLuogo)));
}

/// Makes the row that is marked in the grid the current one. They differ after a list was rebuilt, which marks the
/// first row; the user sees the mark alone. True if the current row changed.
bool takeMarkedRow(Form& form) {
    if (form.stato.RigaCorrente == form.mfgTab.row())
        return false;
    form.stato.RigaCorrente = form.mfgTab.row();
    return true;
}

VoceDigitata typedEntry(const Form& form) {
    const int code = CodiceTipoGuida(form.TipiGuidaDescrizione, form.cmbGTipo.text());
    return {
        .luogo = placeOfRow(form),
        .descrizione = form.txtGDescr.text(),
        .codice = code,
        .tempoObbligatorio = code > 0 && form.TipiGuidaTempoObbligatorio[static_cast<std::size_t>(code)],
        .tempo = tempoDigitato(form.cmbGH.text(), form.cmbGM.text()),
    };
}

store::Recordset& openWhere(Form& form, const std::vector<store::Condition>& conditions) {
    form.archivio.RecordSetImposta(0, store::GuidaCitta, {store::TabelleNomi(store::GuidaCitta), conditions, {}});
    return form.archivio.Rs(store::GuidaCitta);
}

/// Opens the entries of that description at all places that match a pattern. Finds none for an empty description.
store::Recordset& openEntries(Form& form, const QString& places, const QString& description) {
    using enum store::Condition::Test;
    return openWhere(form, {{QStringLiteral("Localita"), Like, places},
                            {QStringLiteral("Descrizione"), Like, LikeTesto(description)}});
}

bool moveToDescription(store::Recordset& records, const QString& description) {
    for (records.MoveFirst(); !records.EOF_(); records.MoveNext()) {
        if (uguale(Trim(records.testo(u"Descrizione")), Trim(description)))
            return true;
    }
    return false;
}

/// Moves to the stored entry that the row shows. Looks for the exact place and description first. Only if there is
/// none, looks by the patterns of both, and again prefers the exact description.
bool moveToOld(Form& form, const QString& place, const QString& description) {
    if (description.isEmpty())
        return false;
    const QString& shownPlace = form.txtGCitta.text();
    if (uguale(shownPlace, place) &&
        moveToDescription(openWhere(form, {{QStringLiteral("Localita"), store::Condition::Test::Equal, place}}),
                          description))
        return true;
    store::Recordset& records = openEntries(form, LikeTesto(shownPlace), description);
    if (moveToDescription(records, description))
        return true;
    records.MoveFirst();
    return !records.EOF_();
}

void storeEntry(Form& form, const VoceDigitata& entry) {
    const bool stored = moveToOld(form, entry.luogo, cellOfRow(form, guidaDescrizione));
    store::Recordset& records = form.archivio.Rs(store::GuidaCitta);
    if (stored)
        records.Edit();
    else
        records.AddNew();
    if (form.txtGGruppo.text().isEmpty())
        form.txtGGruppo.setText(QStringLiteral(" "));
    records.write(u"Localita", entry.luogo);
    records.write(u"CodiceGuida", Zero(entry.codice, 2));
    records.write(u"Gruppo", form.txtGGruppo.text());
    records.write(u"Descrizione", PrimoMaiuscolo(Trim(entry.descrizione), false));
    records.write(u"TempoSosta", entry.tempo);
    records.write(u"FlagVisto", QStringLiteral("0"));
    records.Update();
}

/// Rebuilds the list and keeps its scroll position.
void rebuildList(Form& form) {
    const SenzaRidisegno quiet(form.mfgTab);
    const int top = form.mfgTab.topRow();
    CreaLaListadellaGuida(form);
    form.mfgTab.setTopRow(top);
    AggiornaNumeroRiga(form);
}

void askAndDelete(Form& form, store::Recordset& records) {
    for (; !records.EOF_(); records.MoveNext()) {
        if (records.testo(u"Localita").contains(u'('))
            continue;
        if (form.txtGCitta.text().size() >= 2 && !stessoGruppo(records.testo(u"Gruppo"), form.txtGGruppo.text()))
            continue;
        const QString entry = records.testo(u"Localita") + QStringLiteral(": ") + records.testo(u"Descrizione");
        if (form.domandaPericolosa(QStringLiteral("Vuoi cancellare questa riga?"), QStringLiteral("Cancella riga"),
                                   entry + u'\n' + describeTrip(form)) == rispostaSi)
            records.Delete();
    }
}

bool applyShortForm(Form& form, const std::optional<FormaBreve>& shortForm) {
    if (!shortForm)
        return false;
    form.txtGDescr.setText(shortForm->descrizione);
    form.cmbGTipo.setText(shortForm->tipo);
    return true;
}

void scrollDownTo(Form& form, int row) {
    Grid& grid = form.mfgTab;
    if (row > grid.topRow() + righeInVista)
        grid.setTopRow(Maggiore(Minore(grid.rows() - 2, row - righeInVista), 1));
}

/// Stores the row and moves on. False if the key leads to no other row. Fields filled for a row of another list aren't
/// stored.
bool saveAndMove(Form& form, int code) {
    const bool anotherList = takeMarkedRow(form);
    int& row = form.stato.RigaCorrente;
    int next = rigaDopoTasto(row, code, form.mfgTab.rows());
    scrollDownTo(form, next);
    if (next == row)
        return false;
    if (!anotherList) {
        SalvaLaRigaGuidaCitta(form, false);
        if (!leaveEntry(form, next)) // the entry lacks something and the user wants to complete it
            return true;
    }
    row = next;
    AggiornaTabellaRigaCorrenteItinerario(form);
    return true;
}

} // namespace

void CmdSalvaRiga_Click(Form& form) {
    SalvaLaRigaGuidaCitta(form, true);
}

void SalvaLaRigaGuidaCitta(Form& form, bool avvisa) {
    takeMarkedRow(form);
    const VoceDigitata entry = typedEntry(form);
    const EsitoVoce result = checkEntry(entry);
    if (result != EsitoVoce::Buona) {
        if (avvisa)
            form.refuse(messaggioVoce(result));
        return;
    }
    storeEntry(form, entry);
    form.archivio.storeSoFar();
    rebuildList(form);
    if (Trim(cellOfRow(form, guidaGruppo)).isEmpty())
        form.txtGDescr.setText({});
    form.setFocus(form.txtGDescr);
}

void cmdCancellaRiga_Click(Form& form) {
    if (takeMarkedRow(form))
        InserisciGuida(form);
    if (!form.txtGDescr.text().isEmpty())
        askAndDelete(form, openEntries(form, LikeTesto(form.txtGCitta.text()) + u'*', form.txtGDescr.text()));
    form.archivio.storeSoFar();
    rebuildList(form);
    if (Trim(cellOfRow(form, guidaDescrizione)).isEmpty()) {
        form.txtGDescr.setText({});
        form.cmdCancellaRiga.setEnabled(false);
    } else {
        form.stato.RigaCorrente = form.mfgTab.rowSel();
        AggiornaTabellaRigaCorrenteItinerario(form);
    }
    form.setFocus(form.txtGDescr);
}

void cmbGTipo_Click(Form& form) {
    const int code = CodiceTipoGuida(form.TipiGuidaDescrizione, form.cmbGTipo.text());
    if (code < 0 || form.TipiGuidaTempoObbligatorio[static_cast<std::size_t>(code)])
        return;
    form.cmbGH.setText(QStringLiteral("00"));
    form.cmbGM.setText(QStringLiteral("00"));
}

void txtGDescr_KeyDown(Form& form, int code) {
    if (!saveAndMove(form, code))
        applyShortForm(form, formaBreve(form.txtGDescr.text()));
}

void txtGGruppo_KeyDown(Form& form, int code) {
    saveAndMove(form, code);
}

void txtGDescr_KeyPress(Form& form, int& code) {
    if (applyShortForm(form, formaDiario(form.txtGDescr.text())))
        code = 0;
}

void txtGGruppo_KeyPress(Form& /*form*/, int& code) {
    code = carattereGruppo(code);
}

} // namespace vanzer
