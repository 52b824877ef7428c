// The modes and flags of the window: which buttons are on, what a pick means, what runs.
#pragma once

#include <QString>

namespace vanzer {

struct StatoFinestra {
    QString CodiceMeta; ///< code of the current destination, six digits; empty with an empty archive

    QString PulsantiMeta;              ///< codes of the buttons of the menu that are on
    QString PulsantiItinerario;        ///< and of those of the leg editor
    QString PulsantiPrimaDellaRicerca; ///< what a search of a destination that is given up goes back to
    bool ViandoriaCalcolata = false;   ///< a schedule for the data on the screen exists
    bool InterrompiCalcolo = false;    ///< the user asked to stop
    bool TornaAlleTappe = false; ///< the legs behind a schedule come back into the leg editor, not only into the table
    int ModoRicerca = 0;         ///< what a pick means: 1 destination, 2 leg, 3 source of a copy, 4 its legs
    bool ModoGuida = false;
    int Risposta = 0; ///< answer of the last question: 6 yes, 7 no, 2 cancel
    double PercentualeCorrente = 0;
    double PercentualeTotale = 0;
    int PercentualeMostrata = -1; ///< what the progress line shows now

    int NumeroTappe = 0;       ///< last row with a place
    int RigaCorrente = 0;      ///< the row being edited
    int RigheMinime = 20;      ///< least number of rows of the grid
    bool KmProgressivi = true; ///< the user's choice: kilometres above the running total of the row above are a total
    QString KmDifferenza;      ///< what the kilometres in the field were made into from a total
    int RigaCaricata = 0;      ///< last row written by a load, a preparation or a test

    int TipoStampa = 0;            ///< what the choice of the printer starts: 1 the schedule, 2 the guide
    bool StampaInCorso = false;    ///< pages are being drawn
    bool InterrompiStampa = false; ///< the user wants no more of them

    QString NomeFileScambio;    ///< the file that destinations go out to or come in from
    bool LavoroInCorso = false; ///< work that can be given up is running, and the frames are off

    bool VecchiFile = false; ///< files of an earlier generation wait to be converted

    int RigaCopia = 0;      ///< the row at hand of the list of a copy's source
    QString MappaModifiche; ///< "1" for each row that the stretch mode has changed and not saved; empty: not begun

    QString FiltroGuida; ///< what the user asked the guide to find; empty: all
};

} // namespace vanzer
