// SPDX-License-Identifier: MIT
#include "reports/guide_print_screen.h"

#include "core/place_name.h"
#include "core/text.h"
#include "guide/entries.h"
#include "reports/guide_report.h"
#include "reports/print_run_screen.h"
#include "window/button_codes.h"
#include "window/modes.h"
#include "window/progress.h"

namespace vanzer {

namespace {

using enum store::Condition::Test;

const QString localita = QStringLiteral("Localita");

store::Recordset& openGuide(Form& form, const std::vector<store::Condition>& where,
                            const std::vector<store::Order>& order) {
    form.archivio.RecordSetImposta(0, store::GuidaCitta, {store::TabelleNomi(store::GuidaCitta), where, order});
    return form.archivio.Rs(store::GuidaCitta);
}

/// All places of the guide, each once.
QStringList allPlaces(Form& form) {
    store::Recordset& records = openGuide(form, {}, {{localita}});
    const int field = records.campo(localita);
    QStringList places;
    QString last;
    for (; !records.EOF_(); records.MoveNext()) {
        const QString name = Trim(records.testo(field));
        if (places.isEmpty() || !uguale(name, last))
            places << name;
        last = name;
    }
    return places;
}

/// The places of the trip that the guide has entries for, numbered in the order of the route.
QStringList placesOfTrip(Form& form) {
    form.archivio.RecordSetImposta(0, store::Itinerari,
                                   {store::TabelleNomi(store::Itinerari),
                                    {{QStringLiteral("CodiceMeta"), Equal, form.stato.CodiceMeta}},
                                    {{QStringLiteral("Sequenza")}}});
    store::Recordset& legs = form.archivio.Rs(store::Itinerari);
    const int field = legs.campo(localita);
    QStringList places;
    for (; !legs.EOF_(); legs.MoveNext()) {
        const QString name = RiPulisceNomeLocalita(legs.testo(field));
        if (!openGuide(form, {{localita, Like, LikeTesto(name) + u'*'}}, {}).EOF_())
            places << Zero(static_cast<int>(places.size()), 5) + u' ' + name;
    }
    return places;
}

class StampaGuida {
  public:
    explicit StampaGuida(Form& form)
        : form_(form), ofTrip_(form.optGuidaListaStampa(1).value()),
          detail_(form.optGuidaDettaglioStampa(1).value() ? DettaglioGuida::Voci : DettaglioGuida::Nomi), run_(form),
          report_(run_.foglio(), detail_, title(), run_.piede()) {}

    void stampa() {
        constexpr int numberBeforeName = 6;
        form_.lstStampanti.clear();
        run_.step([this] { run_.foglio().setUp(); });
        form_.lblElaborazione.setCaption(QStringLiteral("Stampa della viandoria"));
        form_.lblElaborazione.setCaption(QStringLiteral("Stampa della viandoria") + pageShown());
        form_.lstStampanti.setEntries(ofTrip_ ? placesOfTrip(form_) : allPlaces(form_));
        const QStringList places = form_.lstStampanti.entries();
        form_.stato.PercentualeTotale = static_cast<double>(places.size());
        for (qsizetype i = 0; i < places.size() && !run_.finita(); ++i) {
            form_.stato.PercentualeCorrente = static_cast<double>(i) + 1;
            AggiornaPercentuale(form_);
            printPlace(ofTrip_ ? places[i].mid(numberBeforeName) : places[i]);
            form_.lblElaborazione.setCaption(QStringLiteral("Stampa della guida citta") + pageShown());
        }
        bool printed = false;
        run_.step([&] { printed = report_.chiude(); });
        if (printed)
            run_.fineDocumento();
        AzzeraPercentuale(form_);
        AbilitaPulsantiMeta(form_, pulsanti::nessuno);
        if (!run_.fileFatti().isEmpty())
            form_.messaggioFile(QStringLiteral("La guida è nel file:"), run_.fileFatti(), QStringLiteral("Guida Città"),
                                Icona::Informazione);
        run_.tellLost();
    }

  private:
    [[nodiscard]] QString title() const {
        QString text = QStringLiteral("Guida Città: - ") +
                       form_.optGuidaDettaglioStampa(detail_ == DettaglioGuida::Voci ? 1 : 0).caption() +
                       QStringLiteral(" - ") + form_.optGuidaListaStampa(ofTrip_ ? 1 : 0).caption();
        if (ofTrip_)
            text += QStringLiteral(": ") + form_.txtLocalita.text();
        return text.remove(u'&');
    }

    [[nodiscard]] QString pageShown() { return QStringLiteral(" (pag. %1)").arg(run_.foglio().pagina()); }

    void printPlace(const QString& name) {
        const bool entries = detail_ == DettaglioGuida::Voci;
        store::Recordset& records = entries
                                        ? openGuide(form_, {{localita, Equal, name}}, {{QStringLiteral("CodiceGuida")}})
                                        : openGuide(form_, {{localita, Like, LikeTesto(name)}}, {});
        for (; !records.EOF_() && !run_.finita(); records.MoveNext()) {
            run_.step([&] { report_.StampaRigaGuidaCitta(entryOf(records)); });
            if (!entries)
                return;
        }
    }

    [[nodiscard]] VoceStampata entryOf(store::Recordset& record) const {
        return {record.testo(u"Localita"), nomeTipoGuida(form_.TipiGuidaDescrizione, record.testo(u"CodiceGuida")),
                record.testo(u"Gruppo"), record.testo(u"Descrizione"), record.testo(u"TempoSosta")};
    }

    Form& form_;
    bool ofTrip_;
    DettaglioGuida detail_;
    CorsaDiStampa run_;
    ReportGuida report_;
};

} // namespace

void StampaDelleMete(Form& form) {
    StampaGuida(form).stampa();
}

} // namespace vanzer
