// SPDX-License-Identifier: MIT
#include "schedule/calculation_screen.h"

#include "core/text.h"
#include "core/time_values.h"
#include "itinerary/leg_editor_screen.h"
#include "schedule/fitting.h"
#include "schedule/growing_rows_screen.h"
#include "schedule/preparation_screen.h"
#include "schedule/rows.h"
#include "schedule/simulation.h"
#include "schedule/time_line_screen.h"
#include "trip/destination_screen.h"
#include "trip/parameter_fields_screen.h"
#include "trip/totals_screen.h"
#include "trip/trip_numbers.h"
#include "window/button_codes.h"
#include "window/changes.h"
#include "window/grid_layouts.h"
#include "window/modes.h"
#include "window/progress.h"

namespace vanzer {

using namespace Qt::StringLiterals;

namespace {

store::Recordset& openDestination(Form& form) {
    form.archivio.StringaSQL =
        QStringLiteral("SELECT * FROM MeteVanzer WHERE CodiceMeta = '") + store::quotato(form.stato.CodiceMeta) + u'\'';
    form.archivio.RecordSetImposta(0, store::MeteVanzer);
    return form.archivio.Rs(store::MeteVanzer);
}

double storedCoefficient(Form& form) {
    const store::Recordset& record = openDestination(form);
    return record.EOF_() ? 0 : Val(record.testo(QStringLiteral("Coefficiente")).replace(u',', u'.'));
}

void storeCoefficient(Form& form) {
    store::Recordset& record = openDestination(form);
    const QString value = testoNumero(form.viaggio->Coefficiente, form.ambiente.decimalMark);
    if (record.EOF_() || record.testo(QStringLiteral("Coefficiente")) == value)
        return;
    record.Edit();
    record.write(QStringLiteral("Coefficiente"), value);
    record.Update();
}

void showProgressText(Form& form) {
    const NumeriViaggio& s = *form.viaggio;
    QString text = QStringLiteral("Calcolo della viandoria, test n. %1/20").arg(s.NumeroTest);
    if (s.GiorniCalcolati > 0)
        text += QStringLiteral(" [%1/%2").arg(s.GiorniCalcolati).arg(s.GiorniDesiderati);
    form.lblElaborazione.setCaption(text + u"*I="_s + testoNumero(s.Coefficiente, form.ambiente.decimalMark) + u']');
}

void showPanel(Form& form, const PannelloViandoria& panel) {
    const NumeriViaggio& s = *form.viaggio;
    const Medie speeds = medieMostrate(form);
    float time = 0;
    for (int i = 0; i < 4; ++i) {
        const auto type = static_cast<std::size_t>(i);
        const auto typeTime = static_cast<float>(tempoTratta(panel.km[type], speeds[type]));
        time += typeTime;
        form.txtKmTot(i).setText(migliaiaZero(panel.km[type]));
        form.txtTempo(i).setText(ghmCentesimi2Stringa(typeTime, s.OreGuidaGiorno));
    }
    form.txtKmTot(4).setText(migliaiaZero(panel.kmTotali));
    form.txtTempo(4).setText(ghmCentesimi2Stringa(time, s.OreGuidaGiorno));
    form.txtTragh.setText(QString::number(panel.traghetti));
    if (panel.giuliano == 0)
        return; // nothing was driven: the trip has no end
    const Gma date = Giul2Data(panel.giuliano);
    form.txtFine(0).setText(Zero(date.giorno, 2));
    form.txtFine(1).setText(Zero(date.mese, 2));
    form.txtFine(2).setText(Zero(date.anno, 4));
    const QString hour = oraMostrata(panel.ora);
    if (!hour.isEmpty()) {
        form.txtFine(3).setText(Left(hour, 2));
        form.txtFine(4).setText(Right(hour, 2));
    }
    form.txtFine(5).setText(GiornoSettimana(Gma2Data(date)));
}

/// The texts of the kept legs and of the window that the rows need.
TestiViandoria rowTexts(const Form& form) {
    const TestiTabella& legs = *form.tappeConservate;
    return {
        .tappa = [&legs](int row, int column) -> const QString& { return legs.text(row - 1, column); },
        .minutiPausa = form.cmbRipM.text(),
        .oreGuidaGiorno = form.viaggio->OreGuidaGiorno,
        .oreVisitaGiorno = form.viaggio->OreVisitaGiorno,
    };
}

/// Shows the table after the last test, with its closing rows.
void showSchedule(Form& form) {
    const ViandoriaMostrata& shown = *form.viandoria;
    Grid& grid = form.mfgTab;
    const SenzaRidisegno quiet(grid);
    grid.setRows(1);
    grid.setContents(tabellaViandoria(shown.viandoria, shown.lavoro->righe, rowTexts(form)));
    grid.setTopRow(1);
}

void tellResult(Form& form, ScopoCalcolo purpose) {
    const NumeriViaggio& s = *form.viaggio;
    if (purpose == ScopoCalcolo::Stampa || s.GiorniDesiderati <= 0)
        return;
    const QString text =
        s.GiorniDesiderati == s.GiorniCalcolati
            ? QStringLiteral("Elaborazione conclusa in %1 tentativi!").arg(s.NumeroTest)
            : QStringLiteral("Elaborazione impossibile! (tentativi effettuati n. %1)").arg(s.NumeroTest);
    form.messaggio(text, QStringLiteral("Calcolo viandoria"), Icona::Informazione);
}

/// Drops the unfinished schedule. The editor's unsaved legs come back, or else the stored ones.
void abandon(Form& form) {
    if (form.stato.TornaAlleTappe) {
        AttivitaInserimentoItinerario(form);
        AttivaFormMeta(form, true);
    } else {
        AttivaFormMeta(form, true);
        form.stato.ModoRicerca = 1;
        form.cmbRicerca.setText(form.txtLocalita.text());
        const CampiTenuti typed(form);
        RicaricaItinerario(form);
        form.cmbRicerca.setVisible(false);
    }
    AbilitaPulsantiMeta(form, pulsanti::tutti);
    AzzeraPercentuale(form);
}

class Calcolo {
  public:
    explicit Calcolo(Form& form)
        : form_(form), s_(form.stato), trip_(*form.viaggio), prepared_(PreparaTabellaPerCalcoloViandoria(form)) {
        AbilitaPulsantiMeta(form_, pulsanti::soloStop);
    }

    /// Runs the tests until one fits or none is left. False if the user stopped them.
    bool prove() {
        Adeguamento search(fittingData());
        VistaCrescente view(form_, prepared_->righe, rowTexts(form_));
        trip_.GiorniCalcolati = 0;
        beginSeries(search);
        do {
            if (search.prossimo(trip_.GiorniCalcolati, trip_.GiorniDesiderati, conSoste()) ==
                Adeguamento::Passo::NuovaSerie) {
                beginSeries(search);
                continue;
            }
            if (!conSoste())
                trip_.GiorniDesiderati = 0;
            trip_.Coefficiente = search.coefficiente();
            trip_.NumeroTest = search.numeroTest();
            if (!prova(view))
                return false;
        } while (search.numeroTest() == 0 ||
                 search.esito(trip_.GiorniCalcolati, trip_.GiorniDesiderati) == Adeguamento::Fine::InCorso);
        return true;
    }

    void chiude(ScopoCalcolo purpose) {
        if (trip_.Coefficiente != 1)
            form_.archivio.writeDerived([this] { storeCoefficient(form_); });
        showPanel(form_, last_.pannello);
        if (last_.pannello.giuliano != 0)
            form_.txtFine(6).setText(QString::number(trip_.GiorniCalcolati));
        form_.viandoria =
            std::make_shared<const ViandoriaMostrata>(ViandoriaMostrata{prepared_, std::move(last_), used_});
        showSchedule(form_);
        form_.frmLinea.setVisible(false);
        form_.cmdCalcola.setCaption(QStringLiteral("&Sblocca"));
        s_.ViandoriaCalcolata = true;
        AzzeraPercentuale(form_);
        tellResult(form_, purpose);
        AbilitaPulsantiMeta(form_, pulsanti::conViandoria);
    }

  private:
    [[nodiscard]] bool conSoste() const {
        return static_cast<double>(prepared_->sosteGuida) + static_cast<double>(prepared_->sosteItinerario) != 0;
    }

    DatiAdeguamento fittingData() {
        const int driving =
            roundToInt(static_cast<double>(ghmStringa2Centesimi(form_.txtTempo(4).text(), trip_.OreGuidaGiorno)));
        DatiAdeguamento data;
        data.valoreMemorizzato = storedCoefficient(form_);
        data.giorniGuida = giorniDiGuida(driving, trip_.OreGuidaGiorno);
        if (data.giorniGuida <= trip_.GiorniDesiderati)
            data.sosteTotali = prepared_->sosteGuida + prepared_->sosteItinerario;
        return data;
    }

    void beginSeries(Adeguamento& search) {
        Aggiorna(form_, false);
        ControllaVariabiliConvertite(form_);
        search.startSeries(trip_.OreGuidaGiorno);
        trip_.Coefficiente = search.coefficiente();
        trip_.NumeroTest = 0;
    }

    bool prova(VistaCrescente& view) {
        view.nuovaProva();
        showProgressText(form_);
        s_.PercentualeTotale = static_cast<double>(prepared_->righe.size());
        // Looks at the window about two hundred times. That is often enough for the eye, and for "&Stop".
        const int step = Maggiore(static_cast<int>(prepared_->righe.size()) / 200, 1);
        const auto looksUp = [this, &view, step, next = 1](int row, const Viandoria& soFar) mutable {
            if (s_.InterrompiCalcolo || row < next)
                return s_.InterrompiCalcolo;
            next = row + step;
            view.showIfDue(soFar);
            s_.PercentualeCorrente = row;
            AggiornaPercentuale(form_);
            return false;
        };
        used_ = parametriSimulazione(form_);
        last_ = simulate(prepared_->righe, used_, trip_.Coefficiente, looksUp, std::move(last_.righe));
        trip_.GiulianoCorrente = last_.giuliano;
        trip_.OraCorrente = last_.ora;
        trip_.NumeroTraghetti = last_.traghetti;
        s_.RigaCaricata = static_cast<int>(last_.righe.size());
        if (last_.esito == Viandoria::Esito::Interrotta)
            return false;
        trip_.GiorniCalcolati = last_.giorni;
        return true;
    }

    Form& form_;
    StatoFinestra& s_;
    NumeriViaggio& trip_;
    std::shared_ptr<const RigheDiLavoro> prepared_;
    ParametriSimulazione used_;
    Viandoria last_;
};

void calculate(Form& form, ScopoCalcolo purpose) {
    AbilitaPulsantiMeta(form, pulsanti::nessuno);
    if (form.stato.ViandoriaCalcolata) {
        AttivaFormMeta(form, true);
        CalcolaKmTempiItinerario(form);
        tellResult(form, purpose);
        AbilitaPulsantiMeta(form, pulsanti::conViandoria);
        return;
    }
    RimetteTappe(form);
    try {
        Calcolo calculation(form);
        if (calculation.prove())
            calculation.chiude(purpose);
        else
            abandon(form);
    } catch (const store::StoreError&) {
        form.cmdCalcola.setCaption(QStringLiteral("&Calcola"));
        form.stato.ViandoriaCalcolata = false;
        RimetteTappe(form);
        throw;
    }
}

} // namespace

ParametriSimulazione parametriSimulazione(const Form& form) {
    const NumeriViaggio& s = *form.viaggio;
    return {
        .oraColazione = s.OraColazione,
        .oraPranzo = s.OraPranzo,
        .durataPranzo = s.DurataPranzo,
        .oraCena = s.OraCena,
        .durataCena = s.DurataCena,
        .oraNotte = s.OraNotte,
        .inizioVisita = s.InizioVisita,
        .fineVisita = s.FineVisita,
        .oreVisitaGiorno = s.OreVisitaGiorno,
        .oreGuidaGiorno = s.OreGuidaGiorno,
        .riposoMinuti = s.RiposoMinuti,
        .riposoOre = s.RiposoOre,
        .riposoGiorno = s.RiposoGiorno,
        .riposoDopoGiorni = s.RiposoDopoGiorni,
        .oraInizioViaggio = s.OraInizioViaggio,
        .giulianoInizio = s.GiulianoInizio,
        .giorniDesiderati = s.GiorniDesiderati,
        .range = roundToInt(Int(Val(form.cmbRange.text()) * 100 / 60)),
        .medie = medieMostrate(form),
    };
}

void cmdCalcola_Click(Form& form) {
    form.frmframe(riquadroMenu).setEnabled(false);
    form.stato.ModoRicerca = 1;
    AbilitaPulsantiMeta(form, pulsanti::nessuno);
    form.cmbRicerca.setText(form.txtLocalita.text());
    AbilitaPulsantiMeta(form, pulsanti::nessuno);
    if (!uguale(form.cmdCalcola.caption(), u"&Calcola")) {
        RinunciaStampa(form);
        unlockLegs(form);
    } else {
        form.cmbRicerca.setVisible(false);
        CalcolaViandoria(form);
    }
    form.frmframe(riquadroMenu).setEnabled(true);
}

void cmdRicalcola_Click(Form& form) {
    form.mfgTab.setWidth(larghezzaTabella);
    form.frmframe(riquadroTappe).setVisible(false);
    form.stato.TornaAlleTappe = true;
    CalcolaViandoria(form);
    AbilitaPulsantiMeta(form, pulsanti::soloCalcola);
}

void CalcolaViandoria(Form& form, ScopoCalcolo purpose) {
    form.stato.InterrompiCalcolo = false;
    if (purpose == ScopoCalcolo::Stampa)
        form.stato.TornaAlleTappe = false;
    calculate(form, purpose);
}

} // namespace vanzer
