#include "window/startup.h"

#include <optional>

#include <QDir>
#include <QFileInfo>

#include "core/place_name.h"
#include "core/text.h"
#include "exchange/choice_screen.h"
#include "exchange/conversion_screen.h"
#include "exchange/exchange_screen.h"
#include "exchange/first_steps_screen.h"
#include "exchange/route_screen.h"
#include "guide/categories.h"
#include "guide/guide_screen.h"
#include "guide/typed_entry_screen.h"
#include "help/help_screen.h"
#include "itinerary/copy_screen.h"
#include "itinerary/leg_editor_screen.h"
#include "itinerary/leg_table_screen.h"
#include "itinerary/list_pick_screen.h"
#include "itinerary/return_screen.h"
#include "itinerary/stretch_screen.h"
#include "itinerary/typed_leg_screen.h"
#include "reports/print_screen.h"
#include "reports/schedule_files_screen.h"
#include "schedule/calculation_screen.h"
#include "schedule/stops_screen.h"
#include "schedule/time_line_screen.h"
#include "store/daily_copy.h"
#include "store/kept_archive.h"
#include "store/outside_files.h"
#include "window/changes.h"
#include "window/command.h"
#include "window/destination_screen.h"
#include "window/grid_layouts.h"
#include "window/modes.h"
#include "window/parameters.h"
#include "window/parameters_screen.h"

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

/// The same for what takes the leg editor's fields away from what is typed in them.
std::function<void()> wiredLeaving(Form& form, Handler handler) {
    return [&form, handler] {
        comando(form, [&form, handler] {
            if (lasciaTappa(form))
                handler(form);
        });
    };
}

void wireMenu(Form& form) {
    form.cmdNuovo.onClick = wired(form, cmdNuovo_Click);
    form.cmdSalva.onClick = wired(form, cmdSalva_Click);
    form.cmdRicerca.onClick = wired(form, cmdRicerca_Click);
    form.cmdCancMeta.onClick = wired(form, cmdCancMeta_Click);
    form.cmdCancItin.onClick = wired(form, cmdCancItin_Click);
    form.cmdEsce.onClick = [&form, leaves = wired(form, cmdEsce_Click)] {
        if (form.comandoInCorso && interrompe(form, form.cmdEsce))
            chiedeDiInterrompere(form);
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
    form.chiudeTratto = [&form] { return chiudeTratto(form); };
    form.mfgCopia.onClick = wired(form, mfgCopia_Click);
    form.mfgCopia.onMark = wired(form, mfgCopia_Mark);
    for (int i = 0; i < 2; ++i) {
        form.cmdAssegna(i).onClick = wired(form, cmdAssegna_Click, i);
        form.cmdInsEsegui(i).onClick = wired(form, cmdInsEsegui_Click, i);
    }
}

void wireGuide(Form& form) {
    form.guideRowShown = [&form] { InserisciGuida(form); };
    form.lasciaRiga = [&form](int& row) { return form.stato.ModoGuida ? lasciaVoce(form, row) : lasciaTappa(form); };
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

/// Caption, frames and places before anything is opened.
void layOutWindow(Form& form) {
    const QString product = QStringLiteral("Vanzer");
    form.caption = product + u" (v. "_s + form.ambiente.versione + u", "_s + product + u") by "_s + product;
    for (const int hidden : {23, 18, 24, 25, 1, 22, 12, 17, 19, 16})
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

/// Where the copies of the days before are; empty if there are none.
QString copiesAre(const Form& form) {
    const QFileInfo newest(store::ultimaCopia(form.archivio.PercorsoDatabase));
    if (newest.fileName().isEmpty())
        return {};
    return QStringLiteral("Le copie dei giorni scorsi sono in %1, la più recente è \"%2\".")
        .arg(QDir::toNativeSeparators(newest.path()), newest.fileName());
}

QString withCopies(const Form& form, const QString& text) {
    const QString where = copiesAre(form);
    return where.isEmpty() ? text : text + QStringLiteral("\n\n") + where;
}

QString isDamaged(const Form& form) {
    return withCopies(form, QStringLiteral("L'archivio %1 si apre, ma al suo interno è danneggiato. Nessuna copia ne è "
                                           "stata fatta e nessuna di quelle che ci sono è stata tolta.")
                                .arg(QDir::toNativeSeparators(form.archivio.PercorsoDatabase)));
}

/// The day's copy of the archive as the day before left it. One that lasts shows its progress and can be stopped. The
/// result is what the user must be told, nothing when all went well.
QStringList copyOfTheDay(Form& form, store::Database& archive) {
    std::optional<ScambioInCorso> shown;
    const auto progress = [&form, &shown](qint64 done, qint64 total) {
        if (!shown) {
            shown.emplace(form);
            form.lblElaborazione.setCaption(QStringLiteral("Copia dell'archivio"));
            form.stato.PercentualeTotale = static_cast<double>(total);
            AbilitaPulsantiMeta(form, QStringLiteral("Es"));
        }
        return shown->avanza(static_cast<double>(done));
    };
    QStringList failure;
    try {
        store::copiaDelGiorno(archive, form.ports.clock.now().date(), progress);
    } catch (const store::StoreError& error) {
        failure += error.kind() == store::StoreError::Kind::Corrupt
                       ? isDamaged(form)
                       : withCopies(form, QStringLiteral("La copia di oggi dell'archivio non è stata fatta.\n\n") +
                                              error.testo());
    }
    if (shown) {
        AzzeraPercentuale(form);
        AbilitaPulsantiMeta(form, QStringLiteral("ZZ"));
    }
    return failure;
}

/// An archive that is in order is looked at once a day; one that was left otherwise, or written by another program, at
/// once. The result is what the user must be told.
QStringList checkAndCopy(Form& form, store::Database& archive) {
    using enum store::Database::Salute;
    const bool due = store::copiaDovuta(archive.percorso(), form.ports.clock.now().date());
    if (archive.chiusoInOrdine() && !due)
        return {};
    const auto health = archive.verifica();
    if (health == Danneggiato)
        return {isDamaged(form)};
    QStringList told;
    if (health == IndiciRifatti)
        told +=
            QStringLiteral("Gli indici dell'archivio %1 non corrispondevano ai dati: sono stati rifatti. I dati sono "
                           "rimasti com'erano.")
                .arg(QDir::toNativeSeparators(archive.percorso()));
    return told + copyOfTheDay(form, archive);
}

store::Archive::SenzaArchivio askForCopy(Form& form, const store::CopiaTrovata& copy) {
    using enum store::Archive::SenzaArchivio;
    const QFileInfo file(copy.path);
    const QString trips = copy.mete == 1 ? QStringLiteral("1 meta") : QStringLiteral("%1 mete").arg(copy.mete);
    const int answer = form.chiede(
        {.text =
             QStringLiteral("L'archivio %1 non c'è, ma in %2 ci sono le sue copie. Riprendere la copia \"%3\" (%4)?")
                 .arg(QDir::toNativeSeparators(form.archivio.PercorsoDatabase), QDir::toNativeSeparators(file.path()),
                      file.fileName(), copy.mete < 0 ? QStringLiteral("non si legge") : trips),
         .title = QStringLiteral("Archivio"),
         .buttons = Pulsanti::RiprendeCominciaAnnulla,
         .icon = Icona::Avviso,
         .detail = QStringLiteral("Con un archivio nuovo le copie restano dove sono. Annulla lascia tutto com'è.")});
    return answer == rispostaSi ? Riprende : answer == rispostaNo ? Comincia : Rinuncia;
}

QStringList told(const Form& form, const store::Archive::Apertura& opening) {
    QStringList texts;
    if (!opening.giornaleEstraneo.isEmpty())
        texts +=
            QStringLiteral("Accanto all'archivio c'era il giornale di un altro archivio, o di un altro suo stato: non "
                           "è stato usato. È messo da parte come %1.")
                .arg(QDir::toNativeSeparators(opening.giornaleEstraneo));
    if (opening.valoriTagliati > 0)
        texts +=
            QStringLiteral("Le tabelle dell'archivio %1 sono state aggiornate. Testi troppo lunghi, accorciati: %2. "
                           "Interi stanno ancora, per %3 avvii, in %4.")
                .arg(QDir::toNativeSeparators(form.archivio.PercorsoDatabase))
                .arg(opening.valoriTagliati)
                .arg(store::avviiTenuti)
                .arg(QDir::toNativeSeparators(opening.archivioDiPrima));
    return texts;
}

/// The result is what the user must be told once the window stands.
QStringList openArchive(Form& form) {
    QStringList warnings;
    const store::Archive::Apertura opening = form.archivio.apriArchivio(
        [&form, &warnings](store::Database& archive) { warnings = checkAndCopy(form, archive); },
        [&form](const store::CopiaTrovata& copy) { return askForCopy(form, copy); });
    form.lblPath.setCaption(form.archivio.PercorsoDatabase);
    if (opening.archivioDiPrima.isEmpty())
        store::contaAvvio(form.archivio.PercorsoDatabase);
    return told(form, opening) + warnings;
}

store::Recordset& openCategories(Form& form) {
    form.archivio.StringaSQL = QStringLiteral("SELECT * FROM TipoGuida ORDER BY CodiceGuida");
    form.archivio.RecordSetImposta(0, store::TipoGuida);
    return form.archivio.Rs(store::TipoGuida);
}

void addCategory(store::Recordset& table, int code, const QString& name, bool timeNeeded) {
    table.AddNew();
    table.scrive(0, Zero(code, 2));
    table.scrive(1, name);
    table.scriveSiNo(2, timeNeeded);
    table.Update();
}

/// Categories that the archive lacks are added at its end; they come into the lists with the next start.
void loadCategories(Form& form) {
    store::Recordset& empty = openCategories(form);
    if (empty.EOF_()) {
        for (std::size_t i = 0; i < primeCategorie.size(); ++i)
            addCategory(empty, static_cast<int>(i) + 1, QString::fromUtf16(primeCategorie[i]), i < categorieDaVisitare);
    }
    QString wanted = QStringLiteral("Ottimo^Da vedere^Interessante^Vedibile^Punto Sosta^PS e CS^Campeggio^Ristorante^"
                                    "Gpl^Diari bordo^Carte/Guide^Altro^");
    form.cmbGTipo.clear();
    int last = 0;
    for (store::Recordset& table = openCategories(form); !table.EOF_(); table.MoveNext()) {
        const QString name = table.testo(1);
        if (const int at = posizione(wanted, name + u'^'); at > 0)
            wanted.remove(at - 1, name.size() + 1);
        last = arrotonda(Val(table.testo(0)));
        if (last >= 0 && last < static_cast<int>(form.TipiGuidaDescrizione.size())) {
            form.TipiGuidaDescrizione[static_cast<std::size_t>(last)] = name;
            form.TipiGuidaTempoObbligatorio[static_cast<std::size_t>(last)] = table.siNo(2);
        }
        form.cmbGTipo.add(name);
    }
    store::Recordset& table = form.archivio.Rs(store::TipoGuida);
    for (const QString& missing : wanted.split(u'^', Qt::SkipEmptyParts)) {
        last = somma(last, 1);
        addCategory(table, last, missing, true);
    }
    form.cmbGTipo.setText(form.TipiGuidaDescrizione[1]);
}

/// A part in brackets behind a guide's place goes.
void tidyGuidePlaces(Form& form) {
    if (!form.archivio.guidaConParentesi())
        return;
    form.archivio.StringaSQL = QStringLiteral("SELECT * FROM GuidaCitta WHERE Localita LIKE '*(*'");
    form.archivio.RecordSetImposta(0, store::GuidaCitta);
    for (store::Recordset& guide = form.archivio.Rs(store::GuidaCitta); !guide.EOF_(); guide.MoveNext()) {
        const QString place = taglia(guide.testo(0), u'(');
        guide.Edit();
        guide.scrive(0, place);
        guide.Update();
    }
}

void showCurrentTrip(Form& form) {
    RicercaMetaCorrente(form);
    if (!form.stato.CodiceMeta.isEmpty())
        RicaricaItinerario(form);
    form.stato.RigaCorrente = Maggiore(form.mfgTab.row(), 1);
    SelezionaRiga(form, form.stato.RigaCorrente);
}

void Form_Load(Form& form) {
    StatoViaggio& s = form.stato;
    form.comandoInCorso = true; // till all is loaded
    s.PulsantiItinerario = QStringLiteral("ZZ");
    AbilitaPulsantiMeta(form, QStringLiteral("ZZ"));
    PulisciFinestre(form);
    CaricaRange(form);
    QStringList warnings = openArchive(form);
    bool loaded = false;
    const auto load = [&form, &s, &loaded] {
        CaricaComboBox(form);
        form.mfgTab.setCurrent(1, 1);
        ImpostaGriglia(form, Disposizione::Tappe);
        s.RigheMinime = 17;
        form.cmdItinerario.setVisible(true);
        AzzeraPercentuale(form);
        showCurrentTrip(form);
        loadCategories(form);
        form.archivio.RecordSetImpostaDefault();
        form.txtGDescr.setMaxLength(form.archivio.Rs(store::GuidaCitta).size(3));
        form.mfgCopia.setVisible(false);
        form.yield();
        cercaVecchiFile(form);
        AbilitaPulsantiMeta(form, pulsantiDiBase(form));
        ImpostaGiorniMeseInizio(form);
        tidyGuidePlaces(form);
        loaded = true;
    };
    try {
        memorizzaInsieme(form, load);
    } catch (const store::StoreError& error) {
        if (!loaded)
            throw;
        warnings += error.testo();
    }
    ricordaCampi(form);
    for (const QString& warning : warnings)
        form.messaggio(warning, QStringLiteral("Archivio"), Icona::Avviso);
}

/// A damaged file needs no more words; every other reason is one that the user can do something about. The copies help
/// where the archive isn't just in use.
QString openingFailed(const Form& form, const store::StoreError& error) {
    QStringList text{QStringLiteral("Errore apertura database ") + form.archivio.PercorsoDatabase};
    if (error.kind() != store::StoreError::Kind::Corrupt)
        text += error.testo();
    if (const QString copies = copiesAre(form); error.kind() != store::StoreError::Kind::Busy && !copies.isEmpty())
        text +=
            copies + QStringLiteral(" Per ripartire da una copia la si mette al posto dell'archivio, con il suo nome.");
    return text.join(QStringLiteral("\n\n"));
}

} // namespace

std::unique_ptr<Form> nuovaFinestra(const Ambiente& surroundings, Ports& ports) {
    auto form = std::make_unique<Form>(surroundings, ports);
    if (form->ambiente.versione.isEmpty())
        form->ambiente.versione = versioneProgramma();
    wire(*form);
    layOutWindow(*form);
    return form;
}

void caricaFinestra(Form& form) {
    try {
        Form_Load(form);
    } catch (const store::StoreError& error) {
        form.rifiuta(openingFailed(form, error));
        form.archivio.chiudi();
        form.chiusa = true;
    }
}

std::unique_ptr<Form> avvia(const Ambiente& surroundings, Ports& ports) {
    auto form = nuovaFinestra(surroundings, ports);
    caricaFinestra(*form);
    return form;
}

void apreViaggi(Form& form, const QString& path) {
    comando(form, [&form, &path] { apreFileDiViaggi(form, path); });
}

QString nomeRiservato(const Form& form, const QString& path) {
    return store::motivoRiservato(path, form.archivio.PercorsoDatabase);
}

QString versioneProgramma() {
    return QStringLiteral(VANZER_VERSION);
}

} // namespace vanzer
