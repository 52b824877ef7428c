// SPDX-License-Identifier: MIT
#include "window/form_texts.h"

#include "window/form.h"

namespace vanzer {

namespace {

struct Testo {
    const char16_t* name;
    const char16_t* text;
};

constexpr auto captions = std::to_array<Testo>({
    {u"frmframe(8)", u"Identificativo della meta:"},
    {u"frmframe(9)", u"Inizio:"},
    {u"frmframe(10)", u"Fine:"},
    {u"frmframe(11)", u"Percorrenze:"},
    {u"frmframe(7)", u"Dati tecnici:"},
    {u"frmframe(5)", u"Orario attività:"},
    {u"frmframe(6)", u"Soste tecniche:"},
    {u"frmframe(4)", u"Riposi in viaggio:"},
    {u"frmframe(0)", u"Calcolo delle soste:"},
    {u"frmframe(15)", u"Menù itinerario:"},
    {u"frmframe(28)", u"Inserimento dati:"},
    {u"frmframe(12)", u"Inserimento itinerario:"},
    {u"frmframe(1)", u"Modifica tratto itinerario:"},
    {u"frmframe(2)", u"Tipo strada da assegnare:"},
    {u"frmframe(19)", u"Tratto dal percorso:"},
    {u"frmframe(22)", u"Export/Import mete (compresi percorsi e guide città)"},
    {u"frmframe(24)", u"Guida visite e soste tecniche:"},
    {u"frmframe(18)", u"Opzioni di stampa:"},
    {u"frmframe(23)", u"Selezione stampante:"},
    // Menu
    {u"cmdNuovo", u"&Nuovo"},
    {u"cmdSalva", u"Sal&va"},
    {u"cmdRicerca", u"&Ricerca"},
    {u"cmdCancMeta", u"&Delete"},
    {u"cmdExport", u"Import/E&xport"},
    {u"cmdEsce", u"&Esce"},
    {u"cmdItinerario", u"&Itinerario"},
    {u"cmdGuidaCitta", u"&Guida città"},
    {u"cmdCalcola", u"&Calcola"},
    {u"cmdStampa", u"&Stampa"},
    {u"cmdCancItin", u"C&anc.Itin."},
    {u"cmdModStrada", u"Modifica &tratto"},
    // Parameters
    {u"cmdDefault(0)", u"Sa&lva per default"},
    {u"cmdDefault(1)", u"Car&ica"},
    {u"cmdDefault(2)", u"&Reset"},
    {u"lblTipoStrada(0)", u"Autostrada"},
    {u"lblTipoStrada(1)", u"Superstrada"},
    {u"lblTipoStrada(2)", u"Principale"},
    {u"lblTipoStrada(3)", u"Locale"},
    // Leg editor
    {u"chkKm", u" Km. progress."},
    {u"optStrada(0)", u"&Autostrada"},
    {u"optStrada(1)", u"&Superstrada"},
    {u"optStrada(2)", u"&Principale"},
    {u"optStrada(3)", u"&Locale"},
    {u"chkEndDay", u"Fine giornata"},
    {u"chkMeta(0)", u"Prima mèta"},
    {u"chkMeta(1)", u"Ultima mèta"},
    {u"cmdInserisce", u"&Inserisce tappa"},
    {u"cmdAggiunge", u"&Aggiunge riga vuota"},
    {u"cmdCancella", u"&Cancella riga/tappa"},
    {u"cmdRicalcola", u"&Ricalcola percorso"},
    {u"cmdRitorno", u"Ri&torno a start"},
    {u"cmdCerca", u"C&erca località"},
    {u"cmdFine", u"&Fine inser."},
    {u"cmdMemorizza", u"&Salva Reset"},
    {u"cmdDuplica", u"&Copia da altre mète"},
    {u"cmdAzzeraSoste", u"A&zzera soste itiner."},
    {u"cmdTrasferisce", u"Copia soste guida ->itin."},
    {u"cmdMapPoint", u"&Altri &Pacch."},
    {u"cmdSelezionaMete", u"&Filtra mete reali (da file ITN converter)"},
    // Editing a stretch
    {u"cmdTappaSEl(0)", u"Seleziona"},
    {u"cmdTappaSEl(1)", u"Seleziona"},
    {u"cmdTappaSEl(2)", u"&Assegna"},
    {u"cmdTappaSEl(3)", u"&Fine"},
    {u"cmdTappaSEl(4)", u"&Salva"},
    {u"optTStrada(0)", u"&Autostrada"},
    {u"optTStrada(1)", u"&Superstrada"},
    {u"optTStrada(2)", u"&Principale"},
    {u"optTStrada(3)", u"&Locale"},
    {u"chkTappaSingola", u"Elabora &Singola tappa"},
    // Copying a stretch
    {u"lblDuplica(0)", u"Mèta"},
    {u"lblDuplica(1)", u"Dopo"},
    {u"cmdAssegna(0)", u"Asse&gna tappa iniziale"},
    {u"cmdAssegna(1)", u"Asse&gna tappa  finale"},
    {u"chkInsSoste", u"Inserire anche le soste:"},
    {u"cmdInsEsegui(0)", u"Inserisce &percorso"},
    {u"cmdInsEsegui(1)", u"Rin&uncia"},
    // Exchange
    {u"cmdImportExport(0)", u"&Export"},
    {u"cmdImportExport(1)", u"&Import"},
    {u"cmdImExp(1)", u"&Fine"},
    {u"lblExIstruzioni", u"(Clicca sulla meta che vuoi trasferire da/a Export)"},
    // Guide editor
    {u"lblGNota",
     u"Per inserire una nuova annotazione, posizionarsi sulla prima riga della località (quella vuota); per "
     u"cancellare/modificare, posizionarsi su quella da cancellare."},
    {u"cmdFind", u"C&erca"},
    {u"cmdSalvaRiga", u"&Salva riga"},
    {u"cmdCancellaRiga", u"&Cancella riga"},
    {u"cmdFineInserimento", u"&Fine inserimento"},
    {u"cmdStampaGuidaCitta", u"S&tampa"},
    {u"optGuidaListaStampa(0)", u"&Tutte"},
    {u"optGuidaListaStampa(1)", u"Inerenti la &Meta"},
    {u"optGuidaDettaglioStampa(0)", u"&Località"},
    {u"optGuidaDettaglioStampa(1)", u"Località e &Guida"},
    {u"cmdStampaGuida(0)", u"&Stampa"},
    {u"cmdStampaGuida(1)", u"&Rinuncia"},
    // Printing
    {u"chkTabella", u"Viandoria"},
    {u"chkModuli", u"Moduli \"Diario di bordo\""},
    {u"chkFrontespizio", u"Stampa del &Frontespizio"},
    {u"chkVociFrontespizio(0)", u"&Viandoria"},
    {u"chkVociFrontespizio(1)", u"&Diario di bordo"},
    {u"chkVociFrontespizio(2)", u"Mappe &itinerario"},
    {u"chkVociFrontespizio(3)", u"Mappe &città"},
    {u"txtStampasuFile", u"Stampa su file \"\\vanztabl.txt\" "},
    {u"Label3", u"Stampa su file \\ListaLocalita.txt "},
    {u"cmdEsegui(0)", u"&Stampa"},
    {u"cmdEsegui(1)", u"&Rinuncia"},
    {u"cmdSelStampante(0)", u"&Stampa"},
    {u"cmdSelStampante(1)", u"&Rinuncia"},
    {u"lblStampaInCorso(0)", u"Preparazione moduli in corso... attendere..."},
    {u"lblStampaInCorso(1)", u"(Il tempo di attesa dipende dalla capacità del sistema)"},
    // Help
    {u"cmdHelpGenerico", u"?"},
    {u"chkLinea", u"Linea del &tempo"},
    {u"cmdCalendario", u"Ca&lendario..."},
    {u"cmdFoglio", u"Ta&bella..."},
    {u"cmdLinea", u"Linea del tem&po"},
    {u"frmLinea", u"Linea del tempo:"},
    {u"cmdManuale", u"&Manuale"},
    {u"frmPrimiPassi", u"Primi passi:"},
    {u"lblPrimiPassi", u"In archivio non c'è ancora nessun viaggio. Da dove si comincia?"},
    {u"cmdPrimoViaggio", u"Crea il &primo viaggio"},
    {u"cmdImportaViaggi", u"Impor&ta viaggi..."},
    {u"cmdViaggiEsempio", u"Via&ggi di esempio"},
    {u"cmdHelpTotale1", u"?"},
    {u"cmdHelpTotale2", u"?"},
    {u"cmdHelpTt", u"?"},
    {u"cmdHelpKm", u"?"},
    {u"cmdHelpItin", u"?"},
    {u"cmdHelpDuplica", u"?"},
    {u"cmdHelpExport", u"?"},
    {u"cmdHelpGuida", u"?"},
});

/// A name without an index stands for every control of the array.
constexpr auto tooltips = std::to_array<Testo>({
    {u"cmdNuovo", u"Predispone per una nuova meta (cancella tutti i campi)"},
    {u"cmdSalva", u"Salva la méta corrente (non l'itinerario)"},
    {u"cmdRicerca", u"Ricerca di una meta in archivio"},
    {u"cmdCancMeta", u"Annulla la meta corrente (cancella dall'archivio)"},
    {u"cmdExport", u"Invia e riceve itinerari da/ad altri camperisti"},
    {u"cmdEsce", u"Esce dal form"},
    {u"cmdItinerario", u"Inserimento delle singole tappe con luogo, n. strada, km, tipo, soste, ecc."},
    {u"cmdGuidaCitta", u"Inserimento delle cose da vedere, dei punti di sosta e dei servizi"},
    {u"cmdCalcola", u"Calcola i tempi di percorrenza compresa la guida alle località"},
    {u"cmdStampa", u"Stampa il percorso calcolato (compresa la guida alle località)"},
    {u"cmdCancItin", u"Cancella l'itinerario relativo alla mèta"},
    {u"txtLocalita", u"Città di destinazione della meta"},
    {u"txtNazione", u"Nazione della meta"},
    {u"txtCodice", u"Codice univoco assegnato automaticamente alla meta"},
    {u"cmbInizio(0)", u"Data di inizio del viaggio (gg:mm:aaaa)"},
    {u"cmbInizio(1)", u"Data di inizio del viaggio (gg:mm:aaaa)"},
    {u"cmbInizio(2)", u"Data di inizio del viaggio (gg:mm:aaaa)"},
    {u"cmbInizio(3)", u"Ora inizio viaggio (hh:mm)"},
    {u"cmbInizio(4)", u"Ora inizio viaggio (hh:mm)"},
    {u"cmbOra", u"Inizio singola pausa tecnica (hh:mm)"},
    {u"cmbMin", u"Inizio singola pausa tecnica (hh:mm)"},
    {u"cmbMediaKm", u"Selezionare la media per singolo tipo di strada"},
    {u"cmbRipM", u"Durata del breack per le ore specificate"},
    {u"cmbRipH", u"Ogni quante ore si matura un break"},
    {u"cmbRipG", u"Numero di giorni di riposo per il numero di giorni specificato"},
    {u"cmbRipGG", u"Ogni quanti giorni si matura il riposo in giorni"},
    {u"cmdDefault", u"Queste impostazioni vengono considerate di default"},
    {u"txtInizioGSett", u"Giorno della settimana (automatico)"},
    {u"txtFine(0)", u"Data finale del viaggio (automatico, gg:mm:aaaa)"},
    {u"txtFine(1)", u"Data finale del viaggio (automatico, gg:mm:aaaa)"},
    {u"txtFine(2)", u"Data finale del viaggio (automatico, gg:mm:aaaa)"},
    {u"txtFine(3)", u"Ora finale del viaggio (automatico)"},
    {u"txtFine(4)", u"Ora finale del viaggio (automatico)"},
    {u"txtFine(5)", u"Giorno della settimana (automatico)"},
    {u"txtFine(6)", u"Durata del viaggio in giorni (automatico)"},
    {u"txtKmTot(0)", u"Km totali per singolo tipo di strada (automatico)"},
    {u"txtKmTot(1)", u"Km totali per singolo tipo di strada (automatico)"},
    {u"txtKmTot(2)", u"Km totali per singolo tipo di strada (automatico)"},
    {u"txtKmTot(3)", u"Km totali per singolo tipo di strada (automatico)"},
    {u"txtKmTot(4)", u"Km totali del viaggio (automatico)"},
    {u"txtTempo", u"Tempo percorrenza per singolo tipo di strada (gg:hh:mm, automatico)"},
    {u"txtTragh", u"Numero dei traghetti riscontrati nell'itinerario (automatico)"},
    {u"cmdRitorno", u"Inserisce il ritorno alla località di partenza, dalla località più vicina"},
    {u"cmdDuplica", u"Duplica da altra meta"},
    {u"cmdImExp(1)", u"Rinuncia all'import-export in corso"},
    {u"cmdSelStampante(0)", u"Avvio della stampa"},
    {u"cmdSelStampante(1)", u"Rinuncia alla stampa"},
    {u"cmdHelpGenerico", u"Informazioni sui singoli pulsanti"},
    {u"chkLinea", u"Aggiunge alla stampa la pagina della linea del tempo"},
    {u"cmdCalendario", u"Scrive la viandoria in un file .ics, per l'agenda del telefono o del PC"},
    {u"cmdFoglio", u"Scrive la viandoria in un file .csv, per un foglio di calcolo"},
    {u"cmdLinea", u"Mostra il viaggio come linea del tempo, un giorno per riga"},
    {u"cmdManuale", u"Apre il manuale"},
    {u"cmdPrimoViaggio", u"Apre un viaggio nuovo: nome, nazione, partenza"},
    {u"cmdImportaViaggi", u"Sceglie un file .iei e ne offre i viaggi"},
    {u"cmdViaggiEsempio", u"Porta in archivio tre viaggi già pronti: Capo Nord, Delta del Po, Sud Italia"},
    {u"cmdHelpTotale1", u"Informazioni generiche"},
    {u"cmdHelpTotale2", u"Informazioni sui campi e modalità "},
    {u"cmdHelpTt", u"Informazioni sui campi e modalità "},
    {u"cmdHelpKm", u"Informazioni sui campi"},
    {u"cmdHelpItin", u"Informazioni sui pulsanti"},
    {u"cmdHelpDuplica", u"Informazioni operative"},
    {u"cmdHelpExport", u"Informazioni operative"},
    {u"cmdHelpGuida", u"Informazioni operative"},
});

struct Posto {
    const char16_t* name;
    Geometria place;
};

/// Positions and sizes in twips. Frames without a size keep the one of the form's layout.
constexpr auto places = std::to_array<Posto>({
    {u"frmframe(12)", {10580, 240, 3735, 6600}},
    {u"frmframe(1)", {11520, 2880, 2800, 4095}},
    {u"frmframe(17)", {60, 2900, 7850, 4000}},
    {u"frmframe(19)", {8000, 3500, 3200, 3975}},
    {u"frmframe(22)", {2820, 1440, 9600, 5400}},
    {u"frmframe(24)", {0, 6600, 14280, 1350}},
    {u"frmframe(18)", {6120, 3480, 3375, 3375}},
    {u"frmframe(23)", {5300, 3120, 3375, 3855}},
    {u"frmframe(16)", {1440, 5760, 6975, 735}},
    {u"txtBase", {4200, 240, 3000, 255}},
    {u"mfgTab", {15, 2880, 14280, 4095}},
    {u"cmbRicerca", {450, 3100, 3750, 3800}},
    {u"cmbRicercaTappa", {450, 3100, 3500, 3800}},
    {u"lblLista", {120, 200, 7650, 700}},
    {u"mfgCopia", {120, 800, 6850, 3210}},
});

void writeCaption(Control& control, const QString& text) {
    if (auto* const captioned = dynamic_cast<Captioned*>(&control))
        captioned->setCaption(text);
}

template<typename Write> void forEachNamed(Form& form, const QString& name, Write write) {
    if (Control* const control = form.find(name)) {
        write(*control);
        return;
    }
    for (const auto& control : form.controls()) {
        if (control->baseName() == name)
            write(*control);
    }
}

} // namespace

void writeTexts(Form& form) {
    for (const Testo& t : captions) {
        const QString text = QString::fromUtf16(t.text);
        forEachNamed(form, QString::fromUtf16(t.name), [&text](Control& control) { writeCaption(control, text); });
    }
    for (const Testo& t : tooltips) {
        const QString text = QString::fromUtf16(t.text);
        forEachNamed(form, QString::fromUtf16(t.name), [&text](Control& control) { control.setTooltip(text); });
    }
    for (const Posto& p : places) {
        forEachNamed(form, QString::fromUtf16(p.name), [&p](Control& control) {
            control.place(p.place.left, p.place.top, p.place.width, p.place.height);
        });
    }
}

} // namespace vanzer
