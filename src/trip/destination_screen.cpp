// SPDX-License-Identifier: MIT
#include "trip/destination_screen.h"

#include <span>
#include <utility>

#include "core/text.h"
#include "trip/destination.h"
#include "trip/kept_legs_screen.h"
#include "trip/leg_table_screen.h"
#include "trip/parameter_fields_screen.h"
#include "trip/parameters.h"
#include "trip/trip_numbers.h"
#include "window/button_codes.h"
#include "window/changes.h"
#include "window/confirmation.h"
#include "window/grid_layouts.h"
#include "window/modes.h"

namespace vanzer {

namespace {

constexpr int appoggio = 7; // archive slot for records needed beside those of the current destination

store::Recordset& open(Form& form, int slot, const QString& sql) {
    form.archivio.StringaSQL = sql;
    form.archivio.RecordSetImposta(0, slot);
    return form.archivio.Rs(slot);
}

store::Recordset& openDestination(Form& form, const QString& code) {
    return open(form, store::MeteVanzer,
                QStringLiteral("SELECT * FROM MeteVanzer WHERE CodiceMeta = '") + store::quotato(code) + u'\'');
}

constexpr std::span meals = std::span(campiCoppie).first<numeroPasti>();
constexpr std::span visits = std::span(campiCoppie).subspan<numeroPasti>();

/// Copies a record to the controls. A field without a value leaves its control as it is.
class MostraRecord {
  public:
    MostraRecord(Form& form, const store::Recordset& record) : form_(form), record_(record) {}

    void tutto() {
        testo(form_.txtLocalita, u"Localita");
        testo(form_.txtNazione, u"Nazione");
        testo(form_.txtCodice, u"CodiceMeta");
        inizio();
        for (int i = 0; i < 4; ++i)
            testo(form_.cmbMediaKm(i), campiMedie[static_cast<std::size_t>(i)]);
        for (const CampoCoppia& f : meals)
            coppia(f);
        form_.txtTragh.setText({});
        form_.viaggio->NumeroTraghetti = 0;
        if (has(u"CalcoloSoste"))
            form_.cmbSoste.setText(voceSoste(form_, valore(u"CalcoloSoste")));
        testo(form_.cmbRange, u"Range");
        numero(form_.cmbRipM, u"RiposoMinuti", 2);
        numero(form_.cmbRipH, u"RiposoOre", 2);
        numero(form_.cmbRipG, u"RiposoGiorno", 2);
        numero(form_.cmbRipGG, u"RiposoDopoGiorni", 2);
        numero(form_.cmbGiorni, u"giorniadeguamento", 3);
        for (const CampoCoppia& f : visits)
            coppia(f);
    }

  private:
    [[nodiscard]] bool has(const char16_t* field) const { return record_.hasValue(QString::fromUtf16(field)); }
    [[nodiscard]] QString valore(const char16_t* field) const { return record_.testo(QString::fromUtf16(field)); }

    void testo(TextControl& control, const char16_t* field) {
        if (has(field))
            control.setText(valore(field));
    }
    void numero(TextControl& control, const char16_t* field, int width) {
        if (has(field))
            control.setText(Zero(Val(valore(field)), width));
    }
    void coppia(const CampoCoppia& f) {
        // A blank pair leaves its lists blank; the next check takes the first entries.
        if (has(f.field))
            writePair(form_, f.pair, Trim(Left(valore(f.field), 2)), Trim(Mid(valore(f.field), 3, 2)));
    }
    void inizio() {
        if (has(u"DataInizio")) {
            const QString date = valore(u"DataInizio");
            form_.cmbInizio(0).setText(Mid(date, 1, 2));
            form_.cmbInizio(1).setText(Mid(date, 3, 2));
            form_.cmbInizio(2).setText(Right(date, 4));
        }
        if (has(u"OraInizio")) {
            const QString hour = valore(u"OraInizio");
            form_.cmbInizio(3).setText(Left(hour, 2));
            form_.cmbInizio(4).setText(Right(hour, 2));
        }
    }

    Form& form_;
    const store::Recordset& record_;
};

void emptyResults(Form& form) {
    form.txtKmTot(4).setText({});
    form.txtTempo(4).setText({});
    for (TextBox* const result : form.txtFine)
        result->setText({});
    MettiGiornoSett(form);
    for (int i = 0; i < 5; ++i) {
        form.txtKmTot(i).setText({});
        form.txtTempo(i).setText({});
    }
}

void writeRecord(Form& form, store::Recordset& record) {
    const auto write = [&record](const char16_t* field, const QString& value) {
        record.write(QString::fromUtf16(field), value);
    };
    const auto number = [](const ListControl& list) { return testoNumero(Val(list.text())); };
    write(u"Localita", Trim(form.txtLocalita.text()));
    write(u"Nazione", Trim(form.txtNazione.text()) + u' '); // its field cuts it
    write(u"DataInizio", form.cmbInizio(0).text() + form.cmbInizio(1).text() + form.cmbInizio(2).text());
    write(u"OraInizio", form.cmbInizio(3).text() + form.cmbInizio(4).text());
    for (int i = 0; i < 4; ++i)
        write(campiMedie[static_cast<std::size_t>(i)], number(form.cmbMediaKm(i)));
    for (const CampoCoppia& f : meals)
        write(f.field, form.cmbOra(f.pair).text() + form.cmbMin(f.pair).text());
    write(u"RiposoMinuti", number(form.cmbRipM));
    write(u"RiposoOre", number(form.cmbRipH));
    write(u"RiposoGiorno", number(form.cmbRipG));
    write(u"RiposoDopoGiorni", number(form.cmbRipGG));
    for (const CampoCoppia& f : visits)
        write(f.field, Zero(Val(form.cmbOra(f.pair).text()), 2) + Zero(Val(form.cmbMin(f.pair).text()), 2));
    const QString days = form.cmbGiorni.text();
    write(u"giorniadeguamento", days.size() > 4 ? Zero(Val(days), 3) : days);
    write(u"CalcoloSoste", Left(form.cmbSoste.text(), 1));
    write(u"Range", form.cmbRange.text());
}

/// Opens the stored destination that a save without a code means. False if there is none.
bool findSameName(Form& form) {
    store::Recordset& found = open(form, store::MeteVanzer,
                                   QStringLiteral("SELECT * FROM MeteVanzer WHERE Localita LIKE '") +
                                       store::quotato(LikeTesto(form.txtLocalita.text())) + u'\'');
    while (!found.EOF_() && !stessaMeta(found.testo(QStringLiteral("Localita")), form.txtLocalita.text()))
        found.MoveNext();
    return !found.EOF_();
}

bool findStored(Form& form) {
    if (Val(form.txtCodice.text()) != 0)
        return !openDestination(form, form.txtCodice.text()).EOF_();
    return findSameName(form);
}

QString newCode(Form& form) {
    store::Recordset& all = open(form, appoggio, QStringLiteral("SELECT * FROM MeteVanzer ORDER BY CodiceMeta"));
    std::vector<int> codes;
    for (; !all.EOF_(); all.MoveNext())
        codes.push_back(roundToInt(Val(all.testo(0))));
    return codiceNuovaMeta(codes);
}

/// Writes the controls into the open destination record, which becomes the current one.
void storeRecord(Form& form, bool insertion) {
    if (contains(form.txtLocalita.text(), u"AUTOSTRADA"))
        form.txtLocalita.setText(minuscolo(form.txtLocalita.text()));
    store::Recordset& record = form.archivio.Rs(store::MeteVanzer);
    if (insertion) {
        record.AddNew();
        record.write(QStringLiteral("Coefficiente"), QStringLiteral("0"));
        record.write(QStringLiteral("CodiceMeta"), form.stato.CodiceMeta);
    } else {
        record.Edit();
    }
    writeRecord(form, record);
    record.Update();
    form.metaNuova = false;
    SalvaIlCodiceMetaCorrente(form);
}

void saveRecord(Form& form, bool insertion) {
    storeRecord(form, insertion);
    form.archivio.storeSoFar();
    RicaricaItinerario(form);
    AbilitaPulsantiMeta(form, pulsanti::tutti);
}

/// False, with a message to the user, if a field that a destination needs is empty.
bool hasNames(Form& form) {
    const bool place = !Trim(form.txtLocalita.text()).isEmpty();
    const bool nation = !Trim(form.txtNazione.text()).isEmpty();
    if (!place)
        form.refuse(QStringLiteral("Campo Località: obbligatorio!"));
    else if (!nation)
        form.refuse(QStringLiteral("Campo Nazione: obbligatorio!"));
    return place && nation;
}

void reload(Form& form) {
    RicercaMetaCorrente(form);
    RicaricaItinerario(form);
}

} // namespace

void RicercaMetaCorrente(Form& form) {
    QString& code = form.stato.CodiceMeta;
    code.clear();
    const store::Recordset& current = open(form, store::MetaCorrente, QStringLiteral("SELECT * FROM MetaCorrente"));
    if (!current.EOF_()) {
        code = current.testo(0);
        if (openDestination(form, code).EOF_())
            code.clear();
    }
    if (code.isEmpty()) {
        store::Recordset& last =
            open(form, store::MeteVanzer, QStringLiteral("SELECT * FROM MeteVanzer ORDER BY CodiceMeta DESC"));
        if (!last.EOF_())
            code = last.testo(0);
    }
    AbilitaPulsantiMeta(form, pulsantiDiBase(form));
}

void CaricaDatiAnagraficiMeta(Form& form) {
    ImpostaGriglia(form, Disposizione::Tappe);
    if (std::exchange(form.metaNuova, false))
        form.stato.CodiceMeta.clear();
    if (form.stato.CodiceMeta.isEmpty())
        RicercaMetaCorrente(form);
    if (!form.stato.CodiceMeta.isEmpty()) {
        const store::Recordset& record = openDestination(form, form.stato.CodiceMeta);
        if (!record.EOF_())
            MostraRecord(form, record).tutto();
    }
    emptyResults(form);
}

void RicaricaItinerario(Form& form) {
    CaricaDatiAnagraficiMeta(form);
    CaricaTappeItinerario(form);
    form.campiDaRicordare = true;
}

QString describeTrip(Form& form) {
    using enum store::Condition::Test;
    store::Recordset legs(
        *form.archivio.Db(0),
        {store::TabelleNomi(store::Itinerari), {{QStringLiteral("CodiceMeta"), Equal, form.txtCodice.text()}}, {}});
    const qint64 n = legs.RecordCount();
    const QString count = n == 0   ? QStringLiteral("nessuna tappa")
                          : n == 1 ? QStringLiteral("1 tappa")
                                   : QStringLiteral("%1 tappe").arg(n);
    return QStringLiteral("«%1»: %2").arg(form.txtLocalita.text(), count);
}

void SalvaIlCodiceMetaCorrente(Form& form) {
    form.stato.CodiceMeta = form.txtCodice.text();
    store::Recordset& current = open(form, store::MetaCorrente, QStringLiteral("SELECT * FROM MetaCorrente"));
    if (current.EOF_())
        current.AddNew();
    else
        current.Edit();
    current.write(0, form.txtCodice.text());
    current.Update();
}

void AzzeraSchermo(Form& form) {
    PulisciFinestre(form);
    CaricaDefaultMeta(form, 0);
    for (TextBox* const result : form.txtFine)
        result->setText({});
    MetteAdesso(form);
    CancellaMatrice(form);
    rememberLegs(form);
}

bool loadDestination(Form& form, const QString& code, const QString& localita) {
    const store::Recordset& record = openDestination(form, code);
    if (record.EOF_() || !stessaMeta(record.testo(QStringLiteral("Localita")), localita))
        return false;
    form.stato.CodiceMeta = code;
    RicaricaItinerario(form);
    AbilitaPulsantiMeta(form, pulsanti::tutti);
    return true;
}

void daCodiceNuovo(Form& form) {
    form.stato.CodiceMeta = newCode(form);
    form.txtCodice.setText(form.stato.CodiceMeta);
    form.metaNuova = true;
}

bool insertNewDestination(Form& form) {
    if (!hasNames(form))
        return false;
    open(form, store::MeteVanzer, QStringLiteral("SELECT * FROM MeteVanzer"));
    storeRecord(form, true);
    rememberFields(form);
    return true;
}

void cmdNuovo_Click(Form& form) {
    if (!leaveChanges(form))
        return;
    AzzeraSchermo(form);
    AttivaFormMeta(form, true);
    form.cmbRicerca.setVisible(false);
    form.setFocus(form.txtLocalita);
    form.txtLocalita.setText({});
    form.txtNazione.setText({});
    form.txtCodice.setText({});
    form.cmbGiorni.setText(QStringLiteral("000"));
    form.campiDaRicordare = true;
    AbilitaPulsantiMeta(form,
                        form.stato.CodiceMeta.isEmpty() ? pulsanti::viaggioNuovo : pulsanti::viaggioNuovoFraAltri);
}

bool saveDestination(Form& form, bool asks) {
    AttivaFormMeta(form, true);
    if (!hasNames(form) || !leaveStretch(form))
        return false;
    PulisciFinestre(form);
    const QString codeBefore = form.stato.CodiceMeta;
    const QString shownBefore = form.txtCodice.text();
    const bool insertion = !findStored(form);
    form.stato.CodiceMeta =
        insertion ? newCode(form) : form.archivio.Rs(store::MeteVanzer).testo(QStringLiteral("CodiceMeta"));
    form.txtCodice.setText(form.stato.CodiceMeta);
    if (asks)
        BoxConferma(form, insertion ? QStringLiteral("I") : QStringLiteral("M"));
    const bool wanted = !asks || form.stato.Risposta == rispostaSi;
    const auto takeCodeBack = [&] {
        form.stato.CodiceMeta = codeBefore;
        form.txtCodice.setText(shownBefore);
    };
    if (!wanted) {
        takeCodeBack();
    } else {
        try {
            saveRecord(form, insertion);
        } catch (const store::StoreError&) {
            takeCodeBack();
            throw;
        }
    }
    Aggiorna(form, true);
    return wanted;
}

void cmdSalva_Click(Form& form) {
    static_cast<void>(saveDestination(form, true));
}

void cmdCancMeta_Click(Form& form) {
    AttivaFormMeta(form, true);
    if (!leaveChanges(form))
        return;
    form.frmframe(riquadroTappe).setVisible(false);
    form.mfgTab.setWidth(larghezzaTabella);
    CancellaMatrice(form);
    Aggiorna(form, false);
    reload(form);
    BoxConferma(form, QStringLiteral("A"), describeTrip(form));
    if (form.stato.Risposta == rispostaSi) {
        AbilitaPulsantiMeta(form, pulsanti::nessuno);
        CancellaTabella(form, store::Itinerari, QStringLiteral("CodiceMeta"), form.txtCodice.text());
        CancellaTabella(form, store::MeteVanzer, QStringLiteral("CodiceMeta"), form.txtCodice.text());
        form.archivio.storeSoFar();
        reload(form);
    }
    AbilitaPulsantiComando(form);
}

void cmdCancItin_Click(Form& form) {
    AttivaFormMeta(form, true);
    if (!leaveChanges(form))
        return;
    BoxConferma(form, QStringLiteral("AI"), describeTrip(form));
    if (form.stato.Risposta != rispostaSi)
        return;
    const QString sure = QStringLiteral("Sei sicuro di voler cancellare l'itinerario?\n"
                                        "In caso positivo, non sarà più recuperabile!");
    if (form.domandaPericolosa(sure, QStringLiteral("Annullamento itinerario"), describeTrip(form)) != rispostaSi)
        return;
    AbilitaPulsantiMeta(form, pulsanti::nessuno);
    CancellaTabella(form, store::Itinerari, QStringLiteral("CodiceMeta"), form.txtCodice.text());
    form.archivio.storeSoFar();
    reload(form);
}

void cmdRicerca_Click(Form& form) {
    AttivaFormMeta(form, true);
    form.stato.ModoRicerca = 1;
    PulisciFinestre(form);
    form.cmbRicerca.clear();
    form.stato.PulsantiPrimaDellaRicerca = form.stato.PulsantiMeta;
    AbilitaPulsantiMeta(form, pulsanti::duranteLaRicerca);
    store::Recordset& all = open(form, store::MeteVanzer, QStringLiteral("SELECT * FROM MeteVanzer ORDER BY Localita"));
    QStringList names;
    const int name = all.campo(QStringLiteral("Localita"));
    for (; !all.EOF_(); all.MoveNext())
        names << all.testo(name);
    if (names.isEmpty()) {
        form.messaggio(QStringLiteral("Nessuna mèta nel database!"), QStringLiteral("Database vuoto"), Icona::Avviso);
    } else {
        form.cmbRicerca.setEntries(elencoRicerca(names));
        form.cmbRicerca.setVisible(true);
    }
    form.mfgTab.setRows(Maggiore(form.stato.RigheMinime, form.mfgTab.rows() + 1));
    SelezionaRiga(form, 1);
    form.mfgTab.setTopRow(1);
}

void RinunciaRicerca(Form& form) {
    form.cmbRicerca.setVisible(false);
    AbilitaPulsantiMeta(form, form.stato.PulsantiPrimaDellaRicerca);
}

void RichiamaMeta(Form& form, const QString& localita) {
    PulisciFinestre(form);
    ImpostaGriglia(form, Disposizione::Tappe);
    CancellaMatrice(form);
    const store::Recordset& found =
        open(form, store::MeteVanzer,
             QStringLiteral("SELECT * FROM MeteVanzer WHERE Localita = '") + store::quotato(localita) + u'\'');
    if (!found.EOF_()) {
        form.txtCodice.setText(found.testo(QStringLiteral("CodiceMeta")));
        form.archivio.writeDerived([&form] { SalvaIlCodiceMetaCorrente(form); });
    }
    RicaricaItinerario(form);
    form.cmbRicerca.setVisible(false);
}

void cmbRicerca_Click(Form& form) {
    form.cmbRicerca.setVisible(false);
    if (!leaveChanges(form)) {
        RinunciaRicerca(form);
        return;
    }
    RichiamaMeta(form, form.cmbRicerca.text());
    AbilitaPulsantiMeta(form, pulsanti::tutti);
}

} // namespace vanzer
