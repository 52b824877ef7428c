// SPDX-License-Identifier: MIT
#include "startup/wiring.h"

#include "core/text.h"
#include "exchange/conversion_screen.h"
#include "exchange/exchange_screen.h"
#include "exchange/first_steps_screen.h"
#include "exchange/route_screen.h"
#include "guide/guide_screen.h"
#include "guide/typed_entry_screen.h"
#include "help/help_screen.h"
#include "itinerary/copy_screen.h"
#include "itinerary/leg_editor_screen.h"
#include "itinerary/list_pick_screen.h"
#include "itinerary/return_screen.h"
#include "itinerary/stretch_screen.h"
#include "itinerary/typed_leg_screen.h"
#include "reports/print_screen.h"
#include "reports/schedule_files_screen.h"
#include "schedule/calculation_screen.h"
#include "schedule/stops_screen.h"
#include "schedule/time_line_screen.h"
#include "trip/destination_screen.h"
#include "trip/leg_table_screen.h"
#include "trip/parameter_fields_screen.h"
#include "trip/parameters.h"
#include "trip/parameters_screen.h"
#include "trip/totals.h"
#include "trip/trip_numbers.h"
#include "window/command.h"
#include "window/grid_layouts.h"
#include "window/modes.h"
#include "window/progress.h"

namespace vanzer {

using namespace Qt::StringLiterals;

namespace {

using Handler = void (*)(Form&);
using HandlerConIndice = void (*)(Form&, int);

std::function<void()> wired(Form& form, Handler handler) {
    return [&form, handler] { comando(form, [&form, handler] { handler(form); }); };
}

std::function<void()> wired(Form& form, HandlerConIndice handler, int index) {
    return [&form, handler, index] { comando(form, [&form, handler, index] { handler(form, index); }); };
}

/// The same for commands that close the leg editor's fields. They first ask about a typed leg.
std::function<void()> wiredLeaving(Form& form, Handler handler) {
    return [&form, handler] {
        comando(form, [&form, handler] {
            if (leaveLeg(form))
                handler(form);
        });
    };
}

void wireMenu(Form& form) {
    form.saveDestination = [&form] { return saveDestination(form, false); };
    form.cmdNuovo.onClick = wired(form, cmdNuovo_Click);
    form.cmdSalva.onClick = wired(form, cmdSalva_Click);
    form.cmdRicerca.onClick = wired(form, cmdRicerca_Click);
    form.cmdCancMeta.onClick = wired(form, cmdCancMeta_Click);
    form.cmdCancItin.onClick = wired(form, cmdCancItin_Click);
    form.cmdEsce.onClick = [&form, leaves = wired(form, cmdEsce_Click)] {
        if (form.comandoInCorso && stopsWork(form, form.cmdEsce))
            askToInterrupt(form);
        else
            leaves();
    };
    form.cmdItinerario.onClick = wired(form, cmdItinerario_Click);
    form.cmdGuidaCitta.onClick = wired(form, cmdGuidaCitta_Click);
    form.cmdCalcola.onClick = wired(form, cmdCalcola_Click);
    form.cmdStampa.onClick = wired(form, cmdStampa_Click);
    form.cmbRicerca.onClick = wired(form, cmbRicerca_Click);
    form.cmbRicercaTappa.onClick = wired(form, cmbRicercaTappa_Click);
}

void wireParameters(Form& form) {
    for (int i = 0; i < form.cmbInizio.count(); ++i)
        form.cmbInizio(i).onClick = wired(form, cmbInizio_Click, i);
    for (int i = 0; i < numeroCoppie; ++i) {
        form.cmbOra(i).onChange = [&form, i] { cmbOra_Change(form, i); };
        form.cmbOra(i).onLostFocus = wired(form, ControllaVariabiliConvertite);
        form.cmbMin(i).onLostFocus = wired(form, ControllaVariabiliConvertite);
    }
    form.cmbGiorni.onChange = [&form] { cmbgiorni_Change(form); };
    for (int i = 0; i < form.cmdDefault.count(); ++i)
        form.cmdDefault(i).onClick = wired(form, cmdDefault_Click, i);
}

void wireLegEditor(Form& form) {
    form.cmdInserisce.onClick = wired(form, cmdInserisce_Click);
    form.cmdAggiunge.onClick = wiredLeaving(form, cmdAggiunge_Click);
    form.cmdCancella.onClick = wired(form, cmdCancella_Click);
    form.cmdRicalcola.onClick = wiredLeaving(form, cmdRicalcola_Click);
    form.cmdRitorno.onClick = wiredLeaving(form, cmdRitorno_Click);
    form.cmdCerca.onClick = wiredLeaving(form, cmdCerca_Click);
    form.cmdFine.onClick = wiredLeaving(form, cmdFine_Click);
    form.cmdMemorizza.onClick = wiredLeaving(form, cmdMemorizza_Click);
    form.chkKm.onClick = wired(form, chkKm_Click);
    form.cmdAzzeraSoste.onClick = wired(form, cmdAzzeraSoste_Click);
    form.cmdTrasferisce.onClick = wired(form, cmdTrasferisce_Click);
    form.mfgTab.onClick = wired(form, mfgTab_Click);
    form.mfgTab.onDblClick = wired(form, mfgTab_DblClick);
    form.mfgTab.onKeyPress = [&form](int& code) { comando(form, [&form, code] { mfgTab_KeyPress(form, code); }); };
}

void wireStretches(Form& form) {
    form.cmdModStrada.onClick = wired(form, cmdModStrada_Click);
    for (int i = 0; i < form.cmdTappaSEl.count(); ++i)
        form.cmdTappaSEl(i).onClick = wired(form, cmdTappaSEl_Click, i);
    form.cmdDuplica.onClick = wiredLeaving(form, cmdDuplica_Click);
    form.closeStretch = [&form] { return closeStretch(form); };
    form.mfgCopia.onClick = wired(form, mfgCopia_Click);
    form.mfgCopia.onMark = wired(form, mfgCopia_Mark);
    for (int i = 0; i < 2; ++i) {
        form.cmdAssegna(i).onClick = wired(form, cmdAssegna_Click, i);
        form.cmdInsEsegui(i).onClick = wired(form, cmdInsEsegui_Click, i);
    }
}

void wireGuide(Form& form) {
    form.guideRowShown = [&form] { InserisciGuida(form); };
    form.leaveRow = [&form](int& row) { return form.stato.ModoGuida ? leaveEntry(form, row) : leaveLeg(form); };
    form.cmdSalvaRiga.onClick = wired(form, CmdSalvaRiga_Click);
    form.cmbGTipo.onClick = wired(form, cmbGTipo_Click);
    form.cmdCancellaRiga.onClick = wired(form, cmdCancellaRiga_Click);
    form.cmdFind.onClick = wired(form, cmdFind_Click);
    form.cmdFineInserimento.onClick = wired(form, cmdFineInserimento_Click);
    form.txtGDescr.onKeyDown = [&form](int code) { comando(form, [&form, code] { txtGDescr_KeyDown(form, code); }); };
    form.txtGDescr.onKeyPress = [&form](int& code) { txtGDescr_KeyPress(form, code); };
    form.txtGGruppo.onKeyDown = [&form](int code) { comando(form, [&form, code] { txtGGruppo_KeyDown(form, code); }); };
    form.txtGGruppo.onKeyPress = [&form](int& code) { txtGGruppo_KeyPress(form, code); };
}

void wirePrinting(Form& form) {
    form.cmdStampaGuidaCitta.onClick = wired(form, cmdStampaGuidaCitta_Click);
    for (int i = 0; i < 2; ++i) {
        form.cmdEsegui(i).onClick = wired(form, CmdEsegui_Click, i);
        form.cmdStampaGuida(i).onClick = wired(form, cmdStampaGuida_Click, i);
        form.cmdSelStampante(i).onClick = wired(form, cmdSelStampante_Click, i);
    }
}

void wireExchange(Form& form) {
    form.cmdExport.onClick = wired(form, cmdExport_Click);
    for (int i = 0; i < 2; ++i) {
        form.cmdImportExport(i).onClick = wired(form, cmdImportExport_Click, i);
        form.mfgImExp(i).onClick = wired(form, mfgImExp_Click, i);
        form.cmdTutto(i).onClick = wired(form, cmdTutto_Click, i);
        form.cmdImExp(i).onClick = wired(form, cmdImExp_Click, i);
    }
    form.cmdMapPoint.onClick = wired(form, cmdMapPoint_Click);
    form.cmdSelezionaMete.onClick = wired(form, cmdSelezionaMete_Click);
    form.cmdConverte.onClick = wired(form, cmdConverte_Click);
}

void wireCompanions(Form& form) {
    form.cmdPrimoViaggio.onClick = wired(form, cmdPrimoViaggio_Click);
    form.cmdImportaViaggi.onClick = wired(form, cmdImportaViaggi_Click);
    form.cmdViaggiEsempio.onClick = wired(form, cmdViaggiEsempio_Click);
    form.cmdLinea.onClick = wired(form, cmdLinea_Click);
    form.cmdCalendario.onClick = wired(form, cmdCalendario_Click);
    form.cmdFoglio.onClick = wired(form, cmdFoglio_Click);
    form.cmdManuale.onClick = [&form] {
        if (form.onManuale)
            form.onManuale();
    };
}

void wireHelp(Form& form) {
    form.cmdHelpGenerico.onClick = wired(form, cmdHelpGenerico_Click);
    form.cmdHelpTotale1.onClick = wired(form, cmdHelpTotale1_Click);
    form.cmdHelpTotale2.onClick = wired(form, cmdHelpTotale2_Click);
    form.cmdHelpTt.onClick = wired(form, cmdHelpTt_Click);
    form.cmdHelpKm.onClick = wired(form, cmdHelpKm_Click);
    for (int i = 0; i < form.cmdHelpItin.count(); ++i)
        form.cmdHelpItin(i).onClick = wired(form, cmdHelpItin_Click, i);
    form.cmdHelpDuplica.onClick = wired(form, cmdHelpDuplica_Click);
    form.cmdHelpExport.onClick = wired(form, cmdHelpExport_Click);
    for (int i = 0; i < form.cmdHelpGuida.count(); ++i)
        form.cmdHelpGuida(i).onClick = wired(form, cmdHelpGuida_Click, i);
}

void digitsOnly(int& code) {
    if (code < u'0' || code > u'9')
        code = 0;
}

void digitsOrControl(int& code) {
    if (code > 31)
        digitsOnly(code);
}

void upperCase(int& code) {
    if (code > 31)
        code = static_cast<int>(QChar::toUpper(static_cast<char32_t>(code)));
}

void wireKeys(Form& form) {
    for (ListControl* const list :
         {&form.cmbRange, &form.cmbSoste, &form.cmbRipG, &form.cmbRipGG, &form.cmbRipH, &form.cmbRipM})
        list->setEntriesOnly();
    for (const auto* const lists : {&form.cmbInizio, &form.cmbMin, &form.cmbOra, &form.cmbSosta}) {
        for (ListControl* const list : *lists)
            list->setEntriesOnly();
    }
    form.cmbGiorni.onKeyPress = digitsOnly;
    form.txtKm.onKeyPress = digitsOnly;
    for (ListControl* const speed : form.cmbMediaKm)
        speed->onKeyPress = digitsOrControl;
    for (TextBox* const text : {&form.txtLocalita, &form.txtNazione, &form.txtTappa, &form.txtNumStrada})
        text->onKeyPress = upperCase;
}

void wire(Form& form) {
    wireMenu(form);
    wireParameters(form);
    wireLegEditor(form);
    wireStretches(form);
    wireGuide(form);
    wirePrinting(form);
    wireExchange(form);
    wireCompanions(form);
    wireHelp(form);
    wireKeys(form);
}

/// Sets caption, frames and places before anything is opened.
void layOutWindow(Form& form) {
    const QString product = QStringLiteral("Vanzer");
    form.caption = product + u" (v. "_s + form.ambiente.versione + u", "_s + product + u") by "_s + product;
    for (const int hidden :
         {riquadroStampanti, riquadroOpzioniStampa, riquadroGuida, riquadroStampaGuida, riquadroTratto, riquadroScambio,
          riquadroTappe, riquadroCopia, riquadroTrattoCopia, riquadroAttesaStampa})
        form.frmframe(hidden).setVisible(false);
    form.frmLinea.setVisible(false);
    form.frmPrimiPassi.setVisible(false);
    form.cmdLinea.setEnabled(false);
    form.cmdConverte.setVisible(false);
    for (Button* const button : {&form.cmdImExp(0), &form.cmdTutto(0), &form.cmdTutto(1), &form.cmdInsEsegui(0)})
        button->setEnabled(false);
    form.lblAutore.setCaption(product);
    const Geometria base = form.txtBase.geometria();
    form.txtPerc.place(base.left, base.top, 0, base.height);
    form.cmbRicerca.setVisible(false);
    form.stato.RigheMinime = 20;
    form.mfgTab.setVisible(true);
    form.mfgTab.setWidth(larghezzaTabella);
    form.mfgTab.setHeight(4095);
    CancellaMatrice(form);
}

} // namespace

std::unique_ptr<Form> nuovaFinestra(const Ambiente& surroundings, Ports& ports) {
    auto form = std::make_unique<Form>(surroundings, ports);
    if (form->ambiente.versione.isEmpty())
        form->ambiente.versione = versioneProgramma();
    form->viaggio = std::make_shared<NumeriViaggio>();
    form->totali = std::make_shared<TotaliTabella>();
    wire(*form);
    layOutWindow(*form);
    return form;
}

QString versioneProgramma() {
    return QStringLiteral(VANZER_VERSION);
}

} // namespace vanzer
