// The trip in work, as numbers. The controls of the window hold the truth; these are copies, made when the parameters
// are checked, for everything that calculates. Clock times and durations are hundredths of an hour.
#pragma once

#include <QString>

namespace vanzer {

struct StatoViaggio {
    QString CodiceMeta; ///< code of the current destination, six digits; empty with an empty archive

    float OraColazione = 0; ///< activity starts
    float OraPranzo = 0;
    float OraCena = 0;
    float OraNotte = 0; ///< the day ends
    float DurataPranzo = 0;
    float DurataCena = 0;
    float InizioVisita = 0; ///< earliest start of a visit
    float FineVisita = 0;   ///< latest end of a visit
    float OreTraghetti = 0; ///< time for one ferry

    float OreGuidaGiorno = 0;  ///< driving time of a planned day: the day unit of driving times
    float OreVisitaGiorno = 0; ///< visiting time of a day

    int RiposoMinuti = 0;     ///< length of a break, hundredths
    int RiposoOre = 0;        ///< hours of travel after which a break falls due
    int RiposoGiorno = 0;     ///< days of a long rest
    int RiposoDopoGiorni = 0; ///< days of travel after which a long rest falls due

    int GiornoInizio = 0;
    int MeseInizio = 0;
    int AnnoInizio = 0;
    float GiulianoInizio = 0;
    float GiulianoCorrente = 0;
    float OraInizioViaggio = 0;
    float OraCorrente = 0;

    int GiorniDesiderati = 0; ///< wanted days; 0: no fitting
    int NumeroTraghetti = 0;

    QString PulsantiMeta;
    QString PulsantiItinerario;
    QString PulsantiPrimaDellaRicerca; ///< what a search of a destination that is given up goes back to
    bool ViandoriaCalcolata = false;   ///< a schedule for the data on the screen exists
    bool InterrompiCalcolo = false;    ///< the user asked to stop
    int ModoRicerca = 0;               ///< what a pick means: 1 destination, 2 leg, 3 source of a copy, 4 its legs
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

    float Coefficiente = 0; ///< multiplier of the guide stops
    int NumeroTest = 0;
    int GiorniCalcolati = 0;

    int TipoStampa = 0;            ///< what the choice of the printer starts: 1 the schedule, 2 the guide
    bool StampaInCorso = false;    ///< pages are being drawn
    bool InterrompiStampa = false; ///< the user wants no more of them

    QString NomeFileScambio;     ///< the file that destinations go out to or come in from
    bool ScambioInCorso = false; ///< such a file is being read or written

    bool VecchiFile = false; ///< files of an earlier generation wait to be converted

    int RigaCopia = 0;      ///< the row at hand of the list of a copy's source
    QString MappaModifiche; ///< "1" for each row that the stretch mode has changed and not saved; empty: not begun

    QString FiltroGuida; ///< what the user asked the guide to find; empty: all
};

} // namespace vanzer
