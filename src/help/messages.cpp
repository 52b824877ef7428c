// SPDX-License-Identifier: MIT
#include "help/messages.h"

#include <array>

namespace vanzer {

using namespace Qt::StringLiterals;

namespace {

/// The text of a message box from lines in this file's format.
QString righe(QStringView lines) {
    return lines.toString().replace(u'\n', "\r\n"_L1);
}

constexpr QStringView altriPulsanti = u"Per gli altri pulsanti, clicca su [?] sulla sinistra dei relativi comandi.";

/// What the buttons of the leg editor do. One text for each line of buttons.
constexpr std::array<QStringView, 4> pulsantiTappa{
    uR"(INSERISCE TAPPA: memorizza la tappa alla riga selezionata (se già presente, sovrascrive);
AGGIUNGE RIGA VUOTA: inserisce una riga vuota per l'inserimento di una tappa intermedia;
RITORNO A START:  inserisce automaticamente le tappe per il ritorno alla località di partenza:
                                     inserisce tappe ritornando a ritroso finchè non trova una tappa omonima,
                                     in pratica ricerca la prima tappa nell'itinerario uguale all'ultima nella lista.)",
    uR"(CANCELLA RIGA/TAPPA: elimina la tappa corrente selezionata;
RICALCOLA PERCORSO: calcola la viandoria con i dati in fase di inserimento;
CERCA LOCALITA': propone una lista alfabetica delle località oggetto dei singoli tratti.)",
    uR"(AZZERA SOSTE ITINER: cancella tutte le soste già inserite nell'itinerario;
COPIA SOSTE GUIDE -> ITIN.: trasferisce le soste dalla guida città all'itinerario;
ALTRI PACCHETTI: importa gli itinerari prodotti con altri pacchetti:
                                   per maggiori informazioni clicca su [?] a destra del pulsante del comando.)",
    uR"(COPIA DA ALTRE METE: consente di copiare tratti d'itinerario da altri già memorizzati;
                                            (altre informazioni [?] attivando la funzione).
SALVA RESET: salva le modifiche apportate all'itinerario o ripristina la situazione in memoria;
FINE INSER.: chiude la funzione, chiedendo se salvare i dati immessi.)",
};

} // namespace

QString aiutoComandi() {
    return righe(uR"(Istruzioni sulle funzioni principali:

- NUOVO: predispone per l'inserimento di una nuova mèta;
- RICERCA: ricerca, tramite lista, una mèta memorizzata negli archivi;
- SALVA: salva i dati relativi alla mèta (se già presente, modifica i dati);
- CANC. META: cancella la mèta attiva (compreso l'itinerario);
- ITINERARIO: attiva il form per l'inserimento delle singole tappe;
- GUIDA CITTA': attiva il form per l'inserimento delle informazioni logistiche;
- CANC.ITIN.: cancella l'itinerario (la mèta resta nel database);
- CALCOLA: calcola la viandoria (se richiesto, adeguata a quanto indicato);
- STAMPA: stampa la viandoria e, se richiesto, anche i moduli per il diario (su file e stampante);
- IMPORT: permette di importare da file mète, itinerari e guide città;
- EXPORT: esporta su file le mète in archivio (selezionabili);
- ESCE: chiude il programma e ritorna a Windows.

Altre informazioni nei singoli form, con il pulsante [?].)");
}

QString aiutoMetodo() {
    return righe(uR"(Filosofia della procedura:

Sono previsti tre oggetti: la META, l'ITINERARIO, la GUIDA CITTA'.

Ciclo per la creazione di una viandoria completa:

Tramite NUOVO, inserire i dati di base della META (parte superiore del form) e salvare.
Tramite RICERCA, attivare una mèta e con:
- ITINERARIO, inserire i vari tratti stradali;
- GUIDA CITTA', inserire le indicazioni sui luoghi da visitare e notizie logistiche;
- CALCOLA, calcolare la viandoria (possibile la modifica dei parametri della meta senza salvare);
- STAMPA, stampare su file (ed a scelta anche su stampante) la viandoria
                    ed eventuali moduli per redigere il proprio diario di bordo.

Nei vari form sono presenti pulsanti [?] di informazione.)");
}

QString aiutoDatiMeta() {
    return righe(uR"(Istruzioni di base sui dai relativi alle mète:

LOCALITA': indica la località generica principale del viaggio (Parigi, Capo Nord, ecc.);
NAZIONE: indica la Nazione principale del viaggio.

Periodo del viaggio:
Indicare la data e l'ora presunta di inizio del viaggio;
Selezionare le soste da prendere in considerazione (dall'itinerario o guida città e modalità).
Gli altri dati del form (Giorno della settimana, data finale e giorni sono calcolati in automatico).

Percorrenze:
Indicare le medie presunte per le quattro tipologie di strade; tutti gli altri dati sono calcolati.

Per i dati inerenti i tempi tecnici clicca sul pulsante [?] del riquadro.

Solo i campi in celeste chiaro sono disponibili per l'inserimento di dati; gli altri sono calcolati.)");
}

QString aiutoTempiTecnici() {
    return righe(uR"(Istruzioni di base sui dai relativi ai Tempi tecnici giornalieri/Riposi/Visite, ecc.:

Indicare:
- l'ora di inizio attività del mattino (dopo la colazione);
- l'ora e la durata del pranzo e della cena;
- l'ora della fine della giornata (fine della guida di trasferimento).

Se desiderato, indicare (altrimenti lasciare a zero):
- l'orario di attività nei luoghi visitati;
- i riposi - break - espressi in minuti per ore continuative di viaggio;
- i riposi pari a giorni interi per giorni continuativi senza pause lunghe almeno un giorno;
- il numero massimo di giorni disponibili per il viaggio (adeguamento viandoria);
- i tempi medi per i traghetti (se si prevedono tempi superiori, inserirli nell'itinerario).

Gestione dati di default:
SALVA: i dati correnti vengono salvati come dati di default personali;
CARICA: i dati di default personali vengono caricati per la mèta corrente;
RESET: vengono caricati i dati standard impostati dal programma.)");
}

QString aiutoCampiTappa() {
    return righe(uR"(Informazioni sull'inserimento dei dati:

TAPPA: indicare la località di arrivo del tratto stradale;
NUMERO STRADA: indicare l 'identificativo della strada (inserire TRAGH se trattasi di traghetto);

DISTANZA in KM: indicare la distanza in chilometri (dalla tappa precedente) con il seguente accorgimento:
                    se la casella 'Km. Progress' è spuntata, è possibile inserire il progressivo della tappa,
                    e la differenza sarà calcolata in automatico;
                    (Esempio: progress.=550, inserendo 1000, saranno calcolati 450 km (1000-450).

TIPO STRADA: selezionare la tipologia (influisce sul tempo di percorrenza);
EVENTUALE SOSTA: il dato è obbligatorio se non sono indicati km. o 'TRAGH' su numero strada;
FINE GIORNATA: se spuntato, forza la sosta fino all'inizio del giorno successivo.

Per inserire la tappa, cliccare su INSERISCE TAPPA.

Per il significato dei pulsanti di questo form, cliccare sugli altri Help [?] in basso.)");
}

QString aiutoPulsantiTappa(int line) {
    return righe(u"Significato dei singoli pulsanti (%1. linea):\n\n%2\n\n%3"_s.arg(
        QString::number(line + 1), pulsantiTappa[static_cast<std::size_t>(line)], altriPulsanti));
}

QString aiutoAltriPacchetti() {
    return righe(uR"(Informazioni sulla funzione particolare:

ALTRI PACCHETTI: importa gli itinerari prodotti con altri pacchetti.

La funzione è attiva solo se l'itinerario è vuoto!

Al momento sono attivi:
          . MapPoint ((c) Microsoft)
          . Autoroute 66
          . Route 2000-2001

In tutti i casi è necessario disporre di un file in formato *.TXT che di solito
viene prodotto trasferendo i dati elaborati dal pacchetto originario ad Excel.
Non apportare alcuna modifica ai dati prodotti dal pacchetto (importante!), e
salvare il file in formato 'Testo (delimitato da tabulazione)(*.txt)'.
Per le modalità di trasferimento vedere le istruzioni del pacchetto stesso.

Per pacchetti non previsti, contattatemi!

%1)"_s.arg(altriPulsanti));
}

QString aiutoCopiaTratto() {
    return righe(uR"(Informazioni sulla duplicazione di tratti stradali da altri itinerari:

Ricercare la tappa iniziale e selezionarla, quindi cliccare su 'ASSEGNA TAPPA INIZIALE';
Ricercare la tappa finale e selezionarla, quindi cliccare su 'ASSEGNA TAPPA FINALE';
L'assegnazione determina il senso del percorso.

Se si desidera copiare anche le soste, spuntare la casella INSERIRE ANCHE LE SOSTE.

INSERISCE PERCORSO: inserisce il tratto stradale selezionato dopo la località
                                          indicata nel form.

Ricordarsi di verificare la distanza della prima tappa duplicata!)");
}

QString aiutoImportExport() {
    return righe(uR"(Informazioni sulle funzioni di Import ed Export:

ESPORTA
   Selezionare, cliccando, sulla finestra di sinistra, le mète da esportare;
   Selezionare, cliccando, sulla finestra di destra, le mète da non esportare;
   ESPORTA: esporta le mète elencate nella finestra di destra in un file (seguire istruzioni).

IMPORT
   Ricercare il file con estensione .iei
   Selezionare, cliccando, sulla finestra di sinistra, le mète da importare;
   Selezionare, cliccando, sulla finestra di destra, le mète da non importare;
   IMPORTA: importa le mète selezionate;
   Sono escluse le mète presenti in archivio (stessa località);
   sono importati i dati delle singole mète, itinerari ed informazioni di guida.

Funzioni comuni IMPORT EXPORT:
   [nn] TUTTI ->: seleziona tutte le mète della finestra di sinistra;
   <- TUTTI [nn]: seleziona tutte le mète della finestra di destra;

RINUNCIA: rinuncia alla funzione richiesta.)");
}

QString aiutoPulsantiGuida() {
    return righe(uR"(Istruzioni per l'inserimento di informazioni logistiche:

Funzioni dei pulsanti:
CERCA: propone una lista delle località dell'itinerario per selezionare quella desiderata;
SALVA RIGA: memorizza la riga del form con le informazioni inserite:
                         dato inserito su riga vuota: Nuova voce; su riga già occupata: Modifica voce;
CANCELLA RIGA: cancella la riga selezionata;
STAMPA: stampa il database, con/senza dettaglio, località corrente/tutte le località;
FINE INSERIMENTO: fine della fase di inserimento.

Per il significato dei campi, clicca sul vicino [?] (dopo aver chiuso questo messaggio).)");
}

QString aiutoCampiGuida() {
    return righe(uR"(Istruzioni per l'inserimento di informazioni logistiche:

Significato del campi:
LOCALITA': il dato è inserito in automatico selezionandolo dalla griglia o tramite funzione Cerca;
TEMPO: se trattasi di oggetto di visita è obbligatorio (dato non logistico);
TIPOLOGIA: scegliere uno fra i 4 livelli di interesse per Monumenti, chiese, ecc; oppure se trattasi
                       di informazione logistica: Punto sosta, PS e CS, Campeggio, Ristorante, stazione Gpl e diari di bordo.

L'informazione è disponibile per tutti gli itinerari.

Per il significato dei pulsanti, clicca sul vicino [?] (dopo aver chiuso questo messaggio).)");
}

} // namespace vanzer
