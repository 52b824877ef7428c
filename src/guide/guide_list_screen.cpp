// SPDX-License-Identifier: MIT
#include <vector>

#include "core/place_name.h"
#include "core/text.h"
#include "guide/entries.h"
#include "guide/guide_screen.h"
#include "itinerary/leg_editor_screen.h"
#include "window/button_codes.h"
#include "window/changes.h"
#include "window/grid_layouts.h"
#include "window/modes.h"

namespace vanzer {

namespace {

constexpr int altezzaRiquadro = 1350;
constexpr int altezzaGriglia = 3770;

struct TappaGuida {
    QString localita;
    QString tempoSosta;
};

/// The legs of the current destination, sorted by name. Only names that end with the filter.
std::vector<TappaGuida> readPlaces(Form& form) {
    using enum store::Condition::Test;
    const QString place = QStringLiteral("Localita");
    store::Query query{store::TabelleNomi(store::Itinerari),
                       {{QStringLiteral("CodiceMeta"), Equal, form.stato.CodiceMeta}},
                       {{place}}};
    if (!form.stato.FiltroGuida.isEmpty())
        query.where.push_back({place, Like, u'*' + form.stato.FiltroGuida});
    form.archivio.RecordSetImposta(0, store::Itinerari, query);
    store::Recordset& records = form.archivio.Rs(store::Itinerari);
    const int name = records.campo(place);
    const int stop = records.campo(QStringLiteral("TempoSosta"));
    std::vector<TappaGuida> legs;
    for (; !records.EOF_(); records.MoveNext())
        legs.push_back({records.testo(name), records.testo(stop)});
    return legs;
}

/// Writes the list row by row, from the first row on.
class ListaGuida {
  public:
    explicit ListaGuida(Form& form) : form_(form), row_(form.stato.RigaCaricata) { row_ = 0; }

    void luogo(const TappaGuida& leg) {
        prossima();
        write(guidaLuogo, leg.localita);
        write(guidaSosta, leg.tempoSosta);
    }

    void voci(const QString& place) {
        using enum store::Condition::Test;
        form_.archivio.RecordSetImposta(
            0, store::GuidaCitta,
            {store::TabelleNomi(store::GuidaCitta),
             {{QStringLiteral("Localita"), Equal, place}},
             {{QStringLiteral("Gruppo")}, {QStringLiteral("CodiceGuida")}, {QStringLiteral("Descrizione")}}});
        store::Recordset& records = form_.archivio.Rs(store::GuidaCitta);
        for (; !records.EOF_(); records.MoveNext())
            voce(place, records);
    }

  private:
    void voce(const QString& place, const store::Recordset& record) {
        prossima();
        write(guidaLuogo, place);
        write(guidaGruppo, record.testo(u"Gruppo"));
        write(guidaDescrizione, record.testo(u"Descrizione"));
        write(guidaTempo, record.testo(u"TempoSosta"));
        write(guidaTipo, nomeTipoGuida(form_.TipiGuidaDescrizione, record.testo(u"CodiceGuida")));
        write(guidaSegno, segnoVoce.toString());
    }

    void prossima() {
        ++row_;
        if (row_ >= form_.mfgTab.rows())
            form_.mfgTab.setRows(2 * row_ + 5);
        write(guidaNumero, QString::number(row_));
    }

    void write(int column, const QString& text) { form_.mfgTab.setCell(row_, column, text); }

    Form& form_;
    int& row_;
};

void showPlaces(Form& form, const std::vector<TappaGuida>& legs) {
    Grid& grid = form.mfgTab;
    const SenzaRidisegno quiet(grid);
    grid.setRows(1);
    grid.setRows(Maggiore(static_cast<int>(legs.size()), form.stato.RigheMinime) + 1);
    ListaGuida list(form);
    QString last = QStringLiteral("\\");
    for (const TappaGuida& leg : legs) {
        const QString place = RiPulisceNomeLocalita(leg.localita);
        if (uguale(place, last))
            continue;
        last = place;
        list.luogo(leg);
        list.voci(place);
    }
    grid.setRows(Maggiore(form.stato.RigaCaricata, form.stato.RigheMinime) + 1);
}

void closeWithoutLegs(Form& form) {
    PulisciFinestre(form);
    ImpostaGriglia(form, Disposizione::Tappe);
    AbilitaPulsantiMeta(form, pulsanti::tutti);
}

void showCategory(Form& form, const QString& cell) {
    if (cell.isEmpty())
        return;
    form.cmbGTipo.setText(Trim(cell).isEmpty() ? form.TipiGuidaDescrizione[1] : cell);
}

void showGroup(Form& form, const QString& cell, bool entry) {
    if (entry || !Trim(cell).isEmpty())
        form.txtGGruppo.setText(gruppoMostrato(cell));
}

void showTime(Form& form, const QString& cell) {
    if (cell.isEmpty())
        return;
    form.cmbGH.setText(oreMostrate(cell));
    form.cmbGM.setText(minutiMostrati(cell));
}

} // namespace

void cmdGuidaCitta_Click(Form& form) {
    StatoFinestra& s = form.stato;
    AttivaFormMeta(form, true);
    if (!leaveStretch(form))
        return;
    AbilitaPulsantiMeta(form, pulsanti::nessuno);
    form.mfgTab.setRows(1);
    form.mfgTab.setRows(s.RigheMinime);
    ImpostaGriglia(form, Disposizione::Guida);
    s.FiltroGuida.clear();
    s.ModoGuida = true;
    CreaLaListadellaGuida(form);
    if (!s.ModoGuida)
        return;
    form.setDefault(form.cmdFineInserimento);
    form.setFocus(form.txtGDescr);
}

void CreaLaListadellaGuida(Form& form) {
    StatoFinestra& s = form.stato;
    std::vector<TappaGuida> legs = readPlaces(form);
    if (legs.empty()) {
        form.refuse(QStringLiteral("Impossibile... non esistono tappe memorizzate!"), QStringLiteral("Guida Città"));
        if (!s.FiltroGuida.isEmpty()) {
            s.FiltroGuida.clear();
            legs = readPlaces(form);
        }
    }
    if (legs.empty()) {
        closeWithoutLegs(form);
        return;
    }
    showPlaces(form, legs);
    s.ModoGuida = true;
    form.frmframe(riquadroGuida).setVisible(true);
    form.frmframe(riquadroGuida).setHeight(altezzaRiquadro);
    form.mfgTab.setHeight(altezzaGriglia);
}

void InserisciGuida(Form& form) {
    StatoFinestra& s = form.stato;
    const Grid& grid = form.mfgTab;
    if (s.RigaCorrente > 1 && Trim(grid.cell(s.RigaCorrente, guidaLuogo)).isEmpty())
        --s.RigaCorrente;
    AggiornaNumeroRiga(form);
    const auto cell = [&](ColonnaGuida column) { return grid.cell(s.RigaCorrente, column); };
    const bool entry = tipoRigaGuida(cell(guidaLuogo), cell(guidaSegno)) == TipoRigaGuida::Voce;
    form.txtGCitta.setText(RiPulisceNomeLocalita(cell(guidaLuogo)));
    showCategory(form, cell(guidaTipo));
    showGroup(form, cell(guidaGruppo), entry);
    form.txtGDescr.setText(Trim(cell(guidaDescrizione)));
    showTime(form, cell(guidaTempo));
    form.cmdCancellaRiga.setEnabled(entry);
    form.setFocus(form.txtGGruppo);
}

} // namespace vanzer
