// Work that makes sense, so that users get deep into what the program does. Each piece is a few lines that are given
// one after the other, whatever comes of them.

#include <vector>

#include "hostile/hand.h"
#include "hostile/line.h"

namespace vanzer::hostile {

using namespace Qt::StringLiterals;

void Hand::plan(const QStringList& lines) {
    planned_.insert(planned_.end(), lines.begin(), lines.end());
}

void Hand::planAnswers() {
    planned_.push_back(answers());
}

/// A click on something that may take long; at times the user does another thing meanwhile.
void Hand::planClick(const QString& button) {
    static const QStringList meanwhile{u"during click cmdEsce"_s,
                                       u"during click cmdCalcola"_s,
                                       u"during vars"_s,
                                       u"during start"_s,
                                       u"during stop"_s,
                                       u"during row mfgTab 2"_s,
                                       u"during set txtLocalita X"_s,
                                       u"during click cmdFine"_s};
    if (oneIn(6))
        plan({oneOf(meanwhile)});
    plan({line({u"click"_s, button})});
}

void Hand::planTrip(const Form& window) {
    plan({u"click cmdNuovo"_s, line({u"set txtLocalita"_s, place()}), line({u"set txtNazione"_s, text()})});
    if (oneIn(2))
        plan({line({u"set cmbGiorni"_s, number()})});
    if (oneIn(4))
        plan({line({u"set cmbInizio(%1)"_s.arg(below(5)), number()})});
    planAnswers();
    planClick(u"cmdSalva"_s);
    if (oneIn(4))
        return;
    planClick(u"cmdItinerario"_s);
    planLegs(window);
}

void Hand::planLegs(const Form& /*window*/) {
    if (oneIn(5))
        plan({u"click cmdItinerario"_s});
    for (int legs = 1 + below(5); legs > 0; --legs)
        planLeg();
}

void Hand::planLeg() {
    plan({line({u"set txtTappa"_s, place()}), line({u"set txtNumStrada"_s, oneIn(3) ? text() : u"A1"_s}),
          line({u"set txtKm"_s, number()}), u"option optStrada(%1)"_s.arg(below(4))});
    if (oneIn(3))
        plan({line({u"set cmbSosta(%1)"_s.arg(below(3)), number()})});
    if (oneIn(4))
        plan({u"check chkMeta(%1) 1"_s.arg(below(2))});
    if (oneIn(8))
        plan({u"check chkEndDay 1"_s});
    plan({u"click cmdInserisce"_s});
}

/// A row of the table, and what can be done with it.
void Hand::planRow(const Form& window) {
    static const QStringList buttons{u"click cmdAggiunge"_s, u"click cmdCancella"_s, u"click cmdInserisce"_s,
                                     u"dblclick mfgTab"_s};
    plan({line({u"row mfgTab"_s, count(static_cast<std::size_t>(window.mfgTab.rows()))})});
    for (int times = 1 + below(3); times > 0; --times)
        plan({oneOf(buttons)});
}

void Hand::planWayBack(const Form& window) {
    const Grid& legs = window.mfgTab;
    const QString before = legs.cell(1 + below(static_cast<std::size_t>(legs.rows())), 1);
    plan({u"key mfgTab 34"_s, line({u"set txtTappa"_s, before}), u"set txtKm 12"_s, u"click cmdInserisce"_s,
          u"click cmdRitorno"_s});
}

void Hand::planLegSearch(const Form& window) {
    const ListControl& found = window.cmbRicercaTappa;
    if (found.reachable() && found.count() > 0)
        plan({line({u"pick cmbRicercaTappa"_s, oneOf(found.entries())})});
    else
        plan({u"click cmdCerca"_s});
}

void Hand::planStops(const Form& /*window*/) {
    planAnswers();
    planClick(oneIn(2) ? u"cmdTrasferisce"_s : u"cmdAzzeraSoste"_s);
    planAnswers();
    planClick(u"cmdRicalcola"_s);
}

void Hand::planEndOfLegs(const Form& /*window*/) {
    planAnswers();
    planClick(oneIn(3) ? u"cmdMemorizza"_s : u"cmdFine"_s);
}

void Hand::planGuide(const Form& window) {
    plan({u"click cmdGuidaCitta"_s});
    planEntry(window);
}

void Hand::planEntry(const Form& /*window*/) {
    plan({line({u"row mfgTab"_s, count(10)}), line({u"set txtGDescr"_s, text()}),
          line({u"set txtGGruppo"_s, oneIn(2) ? u"A-B"_s : text()}),
          line({u"set cmbGH"_s, oneIn(2) ? u"01"_s : number()}), line({u"set cmbGM"_s, oneIn(2) ? u"30"_s : number()}),
          u"click cmdSalvaRiga"_s});
    if (oneIn(2)) {
        static const QStringList keys{u"33"_s, u"34"_s, u"38"_s, u"40"_s};
        plan({line({u"keydown"_s, oneIn(2) ? u"txtGDescr"_s : u"txtGGruppo"_s, oneOf(keys)})});
    }
    if (oneIn(3)) {
        planAnswers();
        plan({line({u"row mfgTab"_s, count(12)}), u"click cmdCancellaRiga"_s});
    }
    if (oneIn(3))
        plan({line({u"set txtGDescr"_s, text()}), u"click cmdFind"_s});
    if (oneIn(4))
        plan({u"click cmdFineInserimento"_s});
}

void Hand::planGuidePrint(const Form& /*window*/) {
    plan({u"click cmdStampaGuidaCitta"_s, u"option optGuidaListaStampa(%1)"_s.arg(below(2)),
          u"option optGuidaDettaglioStampa(%1)"_s.arg(below(2)), u"click cmdStampaGuida(0)"_s});
    if (oneIn(2))
        plan({u"pick lstStampanti PDF"_s, file()});
    planClick(u"cmdSelStampante(0)"_s);
}

void Hand::planExport(const Form& /*window*/) {
    plan({u"click cmdExport"_s, u"click cmdImportExport(0)"_s,
          oneIn(2) ? u"click cmdTutto(0)"_s : u"row mfgImExp(0) %1"_s.arg(1 + below(5)), file()});
    planAnswers();
    planClick(u"cmdImExp(0)"_s);
}

void Hand::planImport(const Form& /*window*/) {
    plan({u"click cmdExport"_s, file()});
    planClick(u"cmdImportExport(1)"_s);
    plan({oneIn(2) ? u"click cmdTutto(1)"_s : u"row mfgImExp(1) %1"_s.arg(1 + below(4))});
    planAnswers();
    planClick(u"cmdImExp(0)"_s);
}

void Hand::planStretch(const Form& /*window*/) {
    plan({u"click cmdModStrada"_s, u"row mfgTab %1"_s.arg(below(9)), u"click cmdTappaSEl(0)"_s,
          u"row mfgTab %1"_s.arg(below(12)), u"click cmdTappaSEl(1)"_s, u"option optTStrada(%1)"_s.arg(below(4)),
          u"click cmdTappaSEl(2)"_s});
    planAnswers();
    plan({u"click cmdTappaSEl(%1)"_s.arg(3 + below(2))});
}

void Hand::planCopy(const Form& /*window*/) {
    plan({u"click cmdDuplica"_s, u"row mfgCopia %1"_s.arg(1 + below(4)), u"row mfgCopia %1"_s.arg(1 + below(9)),
          u"click cmdAssegna(0)"_s, u"row mfgCopia %1"_s.arg(1 + below(9)), u"click cmdAssegna(1)"_s,
          u"check chkInsSoste %1"_s.arg(below(2))});
    planAnswers();
    planClick(u"cmdInsEsegui(0)"_s);
}

/// A planner's route into a trip that has no legs yet, and the stops that belong to it.
void Hand::planRoute(const Form& window) {
    static const QStringList routes{u"scozia"_s, u"grecia"_s, u"portogallo"_s};
    const QString route = oneOf(routes);
    if (!window.cmdMapPoint.reachable()) {
        plan({u"click cmdNuovo"_s, line({u"set txtLocalita GIRO"_s, count(1000)}), u"set txtNazione ITALIA"_s,
              u"answer 6"_s, u"click cmdSalva"_s, u"click cmdItinerario"_s});
    }
    plan({oneIn(3) ? file() : u"file %1.txt"_s.arg(route)});
    planClick(u"cmdMapPoint"_s);
    plan({oneIn(3) ? file() : u"file %1.csv"_s.arg(route)});
    planAnswers();
    planClick(u"cmdSelezionaMete"_s);
}

void Hand::planParameters(const Form& /*window*/) {
    for (int times = 1 + below(4); times > 0; --times) {
        const QString index = count(7);
        plan({line({u"set cmbOra(%1)"_s.arg(index), number()}), line({u"set cmbMin(%1)"_s.arg(index), number()}),
              line({u"set cmbMediaKm(%1)"_s.arg(below(4)), number()})});
    }
    static const QStringList others{u"cmbRipM"_s,  u"cmbRipH"_s,  u"cmbRipG"_s,
                                    u"cmbRipGG"_s, u"cmbRange"_s, u"cmbSoste"_s};
    plan({line({u"set"_s, oneOf(others), number()})});
    planAnswers();
    plan({oneIn(2) ? u"click cmdDefault(%1)"_s.arg(below(3)) : u"click cmdSalva"_s});
}

void Hand::planCalculation(const Form& /*window*/) {
    plan({line({u"set cmbGiorni"_s, number()})});
    planAnswers();
    planClick(u"cmdCalcola"_s);
    if (oneIn(2))
        planClick(u"cmdCalcola"_s);
}

void Hand::planPrint(const Form& /*window*/) {
    planClick(u"cmdStampa"_s);
    plan({u"check chkTabella %1"_s.arg(below(2)), u"check chkModuli %1"_s.arg(oneIn(6) ? 1 : 0),
          u"check chkFrontespizio %1"_s.arg(below(2)),
          u"check chkVociFrontespizio(%1) %2"_s.arg(below(4)).arg(below(2)), u"click cmdEsegui(0)"_s});
    if (oneIn(2))
        plan({u"pick lstStampanti PDF"_s, file()});
    planAnswers();
    planClick(u"cmdSelStampante(0)"_s);
}

void Hand::planConversion(const Form& /*window*/) {
    planAnswers();
    planClick(u"cmdConverte"_s);
}

void Hand::planSearch(const Form& window) {
    const ListControl& found = window.cmbRicerca;
    if (found.reachable() && found.count() > 0)
        plan({line({u"pick cmbRicerca"_s, oneOf(found.entries())})});
    else
        plan({u"click cmdRicerca"_s});
}

void Hand::planDeletion(const Form& /*window*/) {
    planAnswers();
    planClick(oneIn(2) ? u"cmdCancItin"_s : u"cmdCancMeta"_s);
}

/// Out of wherever the user is.
void Hand::planWayOut(const Form& window) {
    const Button* const waysOut[] = {&window.cmdFine,         &window.cmdSelStampante(1), &window.cmdFineInserimento,
                                     &window.cmdInsEsegui(1), &window.cmdEsegui(1),       &window.cmdImExp(1),
                                     &window.cmdTappaSEl(3),  &window.cmdStampaGuida(1)};
    planAnswers();
    for (const Button* const button : waysOut) {
        if (button->reachable())
            plan({line({u"click"_s, button->name()})});
    }
}

void Hand::planWork(const Form& window) {
    const Work all[] = {{window.cmdNuovo, &Hand::planTrip},
                        {window.cmdItinerario, &Hand::planLegs},
                        {window.txtTappa, &Hand::planLegs},
                        {window.cmdAggiunge, &Hand::planRow},
                        {window.cmdRitorno, &Hand::planWayBack},
                        {window.cmdCerca, &Hand::planLegSearch},
                        {window.cmdTrasferisce, &Hand::planStops},
                        {window.cmdMemorizza, &Hand::planEndOfLegs},
                        {window.cmdGuidaCitta, &Hand::planGuide},
                        {window.txtGDescr, &Hand::planEntry},
                        {window.cmdStampaGuidaCitta, &Hand::planGuidePrint},
                        {window.cmdExport, &Hand::planExport},
                        {window.cmdExport, &Hand::planImport},
                        {window.cmdModStrada, &Hand::planStretch},
                        {window.cmdDuplica, &Hand::planCopy},
                        {window.cmdNuovo, &Hand::planRoute},
                        {window.cmdMapPoint, &Hand::planRoute},
                        {window.cmbGiorni, &Hand::planParameters},
                        {window.cmdCalcola, &Hand::planCalculation},
                        {window.cmdStampa, &Hand::planPrint},
                        {window.cmdConverte, &Hand::planConversion},
                        {window.cmdRicerca, &Hand::planSearch},
                        {window.cmbRicercaTappa, &Hand::planLegSearch},
                        {window.cmbRicerca, &Hand::planSearch},
                        {window.cmdCancItin, &Hand::planDeletion}};
    std::vector<const Work*> possible;
    for (const Work& work : all) {
        if (work.door.reachable())
            possible.push_back(&work);
    }
    if (possible.empty() || oneIn(10))
        planWayOut(window);
    else
        (this->*oneOf(possible)->plan)(window);
}

} // namespace vanzer::hostile
