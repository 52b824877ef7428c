// SPDX-License-Identifier: MIT
// Modes and flags of the window: enabled buttons, the meaning of a pick, running work.
#pragma once

#include <QString>

namespace vanzer {

struct StatoFinestra {
    QString CodiceMeta; ///< code of the current destination, six digits; empty if the archive is empty

    QString PulsantiMeta;              ///< codes of the enabled buttons of the menu
    QString PulsantiItinerario;        ///< codes of the enabled buttons of the leg editor
    QString PulsantiPrimaDellaRicerca; ///< codes to restore when a search of a destination is cancelled
    bool ViandoriaCalcolata = false;   ///< there is a schedule for the data on the screen
    bool InterrompiCalcolo = false;    ///< the user asked to stop
    bool TornaAlleTappe = false;       ///< return from a schedule to the leg editor, not only to the legs in the table
    int ModoRicerca = 0;               ///< meaning of a pick: 1 destination, 2 leg, 3 source of a copy, 4 its legs
    bool ModoGuida = false;
    int Risposta = 0; ///< answer of the last question: 6 yes, 7 no, 2 cancel
    double PercentualeCorrente = 0;
    double PercentualeTotale = 0;
    int PercentualeMostrata = -1; ///< percentage that the progress line shows

    int NumeroTappe = 0;       ///< last row with a place
    int RigaCorrente = 0;      ///< the row being edited
    int RigheMinime = 20;      ///< minimum number of rows of the grid
    bool KmProgressivi = true; ///< the user's choice: kilometres above the row before's running total are a total
    QString KmDifferenza;      ///< kilometres of the leg, calculated from a total in the field
    int RigaCaricata = 0;      ///< last row written by a load, a preparation or a test

    int TipoStampa = 0;            ///< what to print after the choice of the printer: 1 the schedule, 2 the guide
    bool StampaInCorso = false;    ///< pages are being drawn
    bool InterrompiStampa = false; ///< the user stopped the print

    QString NomeFileScambio;    ///< file of an export or import
    bool LavoroInCorso = false; ///< work that the user can stop is running, and frames are disabled

    bool VecchiFile = false; ///< there are old files to convert

    int RigaCopia = 0;      ///< current row in the list of the source of a copy
    QString MappaModifiche; ///< one character per row: "1" if the editing of a stretch changed it and it isn't saved;
                            ///< empty before the start

    QString FiltroGuida; ///< what the user searches in the guide; empty for all
};

} // namespace vanzer
