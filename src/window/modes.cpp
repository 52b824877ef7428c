// SPDX-License-Identifier: MIT
#include "window/modes.h"

#include "core/text.h"
#include "window/button_codes.h"
#include "window/changes.h"
#include "window/grid_layouts.h"
#include "window/progress.h"

namespace vanzer {

namespace {

const QString allMeta = QStringLiteral("NuRiSaCmCaStItGcCiEsImEx");
const QString allItinerario = QStringLiteral("InAgCaRcRtCeFiMeDuAzTr");

bool isAll(const QString& codes) {
    return uguale(codes, pulsanti::tutti);
}

void enableMenu(Form& form) {
    const QString& codes = form.stato.PulsantiMeta;
    const auto on = [&codes](QStringView code) { return contains(codes, code); };
    form.cmdNuovo.setEnabled(on(u"Nu"));
    form.cmdRicerca.setEnabled(on(u"Ri"));
    form.cmdSalva.setEnabled(on(u"Sa"));
    form.cmdCancMeta.setEnabled(on(u"Cm"));
    form.cmdCalcola.setEnabled(on(u"Ca"));
    form.cmdStampa.setEnabled(on(u"St"));
    form.cmdItinerario.setEnabled(on(u"It"));
    form.cmdModStrada.setEnabled(on(u"It"));
    form.cmdGuidaCitta.setEnabled(on(u"Gc"));
    form.cmdCancItin.setEnabled(on(u"Ci"));
    form.cmdEsce.setEnabled(on(u"Es"));
    form.cmdExport.setEnabled(on(u"Ex"));
    // Enabled with the import, so that a conversion can't discard what is being typed or searched.
    form.cmdConverte.setVisible(form.stato.VecchiFile);
    form.cmdConverte.setEnabled(form.stato.VecchiFile && on(u"Im"));
    form.cmdEsce.setCaption(uguale(codes, pulsanti::soloStop) ? QStringLiteral("&Stop") : QStringLiteral("&Esce"));
}

void enableItinerary(Form& form) {
    const QString& codes = form.stato.PulsantiItinerario;
    const auto on = [&codes](QStringView code) { return contains(codes, code); };
    form.cmdInserisce.setEnabled(on(u"In"));
    form.cmdAggiunge.setEnabled(on(u"Ag"));
    form.cmdCancella.setEnabled(on(u"Ca"));
    form.cmdRicalcola.setEnabled(on(u"Rc"));
    form.cmdRitorno.setEnabled(on(u"Rt"));
    form.cmdCerca.setEnabled(on(u"Ce") && form.stato.NumeroTappe > 1);
    form.cmdFine.setEnabled(on(u"Fi"));
    form.cmdMemorizza.setEnabled(on(u"Me"));
    form.cmdDuplica.setEnabled(on(u"Du"));
    form.cmdAzzeraSoste.setEnabled(on(u"Az"));
    form.cmdTrasferisce.setEnabled(on(u"Tr"));
    form.cmdMapPoint.setEnabled(form.stato.NumeroTappe < 2);
}

void leaveProgram(Form& form) {
    AttivaFormMeta(form, true);
    form.mfgTab.setWidth(larghezzaTabella);
    form.frmframe(riquadroTappe).setVisible(false);
    form.archivio.close();
    form.chiusa = true;
}

/// Shows or hides what is beside the table: the time line while the table shows a schedule, and the first steps while
/// there is no trip and nothing else is going on.
void showCompanions(Form& form) {
    const StatoFinestra& s = form.stato;
    const bool schedule = form.viandoria != nullptr && !uguale(form.cmdCalcola.caption(), u"&Calcola");
    if (!schedule) {
        form.viandoria.reset();
        form.linea.reset();
        form.frmLinea.setVisible(false);
    }
    form.cmdLinea.setEnabled(schedule && contains(s.PulsantiMeta, u"Ca"));
    const bool idle = uguale(s.PulsantiMeta, pulsanti::archivioVuoto) || s.PulsantiMeta == allMeta;
    form.frmPrimiPassi.setVisible(idle && s.CodiceMeta.isEmpty() && !form.frmframe(riquadroScambio).visible());
}

} // namespace

QString pulsantiDiBase(const Form& form) {
    return form.stato.CodiceMeta.isEmpty() ? pulsanti::archivioVuoto : pulsanti::tutti;
}

void AbilitaPulsantiComando(Form& form) {
    StatoFinestra& s = form.stato;
    if (isAll(s.PulsantiMeta) || isAll(s.PulsantiItinerario)) {
        form.cmbRicercaTappa.setVisible(false);
        form.setDefault(form.cmdEsce);
    }
    if (!uguale(s.PulsantiMeta, pulsanti::duranteLaStampa) && !uguale(form.cmdCalcola.caption(), u"&Calcola"))
        s.PulsantiMeta = pulsanti::conViandoria;
    if (isAll(s.PulsantiMeta))
        s.PulsantiMeta = allMeta;
    if (isAll(s.PulsantiItinerario))
        s.PulsantiItinerario = allItinerario;
    if (form.frmframe(riquadroTappe).visible())
        s.PulsantiMeta = pulsanti::conTappeAperte;
    // While the lists of an exchange are open no trip is loaded, so the menu has nothing to work on.
    if (form.interattiva && form.frmframe(riquadroScambio).visible() && !s.LavoroInCorso)
        s.PulsantiMeta = pulsanti::nessuno;
    enableMenu(form);
    enableItinerary(form);
    showCompanions(form);
    form.cmdEsce.setTooltip(QStringLiteral("Esce dal form"));
    form.yield();
}

void AbilitaPulsantiMeta(Form& form, const QString& codes) {
    form.stato.PulsantiMeta = codes;
    AbilitaPulsantiComando(form);
}

void AttivaFormMeta(Form& form, bool changing) {
    if (changing)
        form.stato.ViandoriaCalcolata = false;
}

void PulisciFinestre(Form& form) {
    form.mfgTab.setWidth(larghezzaTabella);
    form.cmbRicercaTappa.setVisible(false);
    form.frmframe(riquadroTrattoCopia).setVisible(false);
    form.mfgCopia.setVisible(false);
    form.frmframe(riquadroCopia).setVisible(false);
    form.frmframe(riquadroTappe).setVisible(false);
    form.frmframe(riquadroGuida).setVisible(false);
    form.stato.ModoGuida = false;
    form.mfgTab.setHeight(4055);
}

void RinunciaStampa(Form& form) {
    form.frmframe(riquadroOpzioniStampa).setVisible(false);
    form.frmframe(riquadroStampanti).setVisible(false);
}

void cmdEsce_Click(Form& form) {
    if (uguale(form.cmdEsce.caption(), u"&Stop"))
        askToInterrupt(form);
    else if (form.domanda(QStringLiteral("Vuoi chiudere la procedura?"), titoloFine.toString(), Pulsanti::SiNo) ==
                 rispostaSi &&
             leaveChanges(form))
        leaveProgram(form);
}

} // namespace vanzer
