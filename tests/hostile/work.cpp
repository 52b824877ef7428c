// Work that makes sense, so that users get deep into what the program does. Each piece is a few lines that are given
// one after the other, whatever comes of them.

#include <algorithm>
#include <vector>

#include "hostile/hand.h"

namespace vanzer::hostile {

using namespace Qt::StringLiterals;

namespace {

/// Work that can be begun while its door can be reached. Its lines are parted by "; ". A line behind "3? " is given one
/// time in three; "+DOOR" stands for the lines of that door. Of what stands in braces, parted by "|", one is taken, and
/// what is a word of chance gives a text of that kind; "<5" is a number from 0 to 4. No lines: the door itself is used.
struct Work {
    QLatin1StringView door;
    QLatin1StringView lines;
};

constexpr Work works[] = {
    {"cmdNuovo"_L1, "click cmdNuovo; set txtLocalita {place}; set txtNazione {text}; 2? set cmbGiorni {number}; "
                    "4? set cmbInizio({<5}) {number}; {answers}; click cmdSalva; +cmdItinerario"_L1},
    {"cmdItinerario"_L1, "click cmdItinerario; +txtTappa; 2? +txtTappa; 2? +txtTappa; 2? +txtTappa"_L1},
    {"txtTappa"_L1,
     "set txtTappa {place}; set txtNumStrada {text|A1|A1}; set txtKm {number}; option optStrada({<4}); "
     "3? set cmbSosta({<3}) {number}; 4? check chkMeta({<2}) 1; 8? check chkEndDay 1; click cmdInserisce"_L1},
    {"cmdAggiunge"_L1, "row mfgTab {row}; {click cmdAggiunge|click cmdCancella|click cmdInserisce|dblclick mfgTab}; "
                       "2? {click cmdAggiunge|click cmdCancella|click cmdInserisce|dblclick mfgTab}"_L1},
    {"cmdRitorno"_L1, "key mfgTab 34; set txtTappa {above}; set txtKm 12; click cmdInserisce; click cmdRitorno"_L1},
    {"cmdCerca"_L1, "click cmdCerca"_L1},
    {"cmdTrasferisce"_L1, "{answers}; click {cmdTrasferisce|cmdAzzeraSoste}; {answers}; click cmdRicalcola"_L1},
    {"cmdMemorizza"_L1, "{answers}; click {cmdFine|cmdFine|cmdMemorizza}"_L1},
    {"cmdGuidaCitta"_L1, "click cmdGuidaCitta; +txtGDescr"_L1},
    {"txtGDescr"_L1, "row mfgTab {<10}; set txtGDescr {text}; set txtGGruppo {A-B|text}; set cmbGH {01|number}; "
                     "set cmbGM {30|number}; click cmdSalvaRiga; 2? keydown {txtGDescr|txtGGruppo} {33|34|38|40}; "
                     "3? +cmdCancellaRiga; 3? +cmdFind; 4? click cmdFineInserimento"_L1},
    {"cmdCancellaRiga"_L1, "{answers}; row mfgTab {<12}; click cmdCancellaRiga"_L1},
    {"cmdFind"_L1, "set txtGDescr {text}; click cmdFind"_L1},
    {"cmdStampaGuidaCitta"_L1, "click cmdStampaGuidaCitta; option optGuidaListaStampa({<2}); "
                               "option optGuidaDettaglioStampa({<2}); click cmdStampaGuida(0); +lstStampanti"_L1},
    {"cmdExport"_L1, "click cmdExport; click cmdImportExport(0); row mfgImExp(0) {<6}; 2? click cmdTutto(0); {file}; "
                     "{answers}; click cmdImExp(0)"_L1},
    {"cmdExport"_L1, "click cmdExport; {file}; click cmdImportExport(1); row mfgImExp(1) {<5}; 2? click cmdTutto(1); "
                     "{answers}; click cmdImExp(0)"_L1},
    {"cmdModStrada"_L1, "click cmdModStrada; row mfgTab {<9}; click cmdTappaSEl(0); row mfgTab {<12}; "
                        "click cmdTappaSEl(1); option optTStrada({<4}); click cmdTappaSEl(2); {answers}; "
                        "click cmdTappaSEl({3|4})"_L1},
    {"cmdDuplica"_L1, "click cmdDuplica; row mfgCopia {<5}; row mfgCopia {<10}; click cmdAssegna(0); "
                      "row mfgCopia {<10}; click cmdAssegna(1); check chkInsSoste {<2}; {answers}; "
                      "click cmdInsEsegui(0)"_L1},
    // A planner's route into a trip that has no legs yet, and the stops that belong to it.
    {"cmdNuovo"_L1, "click cmdNuovo; set txtLocalita GIRO {<1000}; set txtNazione ITALIA; answer 6; click cmdSalva; "
                    "click cmdItinerario; +cmdMapPoint"_L1},
    {"cmdMapPoint"_L1, "3? {file}; file {route}.txt; click cmdMapPoint; "
                       "3? {file}; file {route}.csv; {answers}; click cmdSelezionaMete"_L1},
    {"cmbGiorni"_L1, "+cmbMediaKm(0); 2? +cmbMediaKm(0); {answers}; "
                     "click {cmdDefault(0)|cmdDefault(1)|cmdDefault(2)|cmdSalva|cmdSalva|cmdSalva}"_L1},
    {"cmbMediaKm(0)"_L1, "set cmbOra({<7}) {number}; set cmbMin({<7}) {number}; set cmbMediaKm({<4}) {number}; "
                         "2? set {cmbRipM|cmbRipH|cmbRipG|cmbRipGG|cmbRange|cmbSoste} {number}"_L1},
    {"cmdCalcola"_L1, "set cmbGiorni {number}; {answers}; click cmdCalcola; 2? click cmdCalcola"_L1},
    {"cmdStampa"_L1, "click cmdStampa; check chkTabella {<2}; check chkModuli {0|0|0|0|0|1}; "
                     "check chkFrontespizio {<2}; check chkVociFrontespizio({<4}) {<2}; click cmdEsegui(0); "
                     "+lstStampanti"_L1},
    {"lstStampanti"_L1, "2? pick lstStampanti PDF; {file}; {answers}; click cmdSelStampante(0)"_L1},
    {"cmdConverte"_L1, "{answers}; click cmdConverte"_L1},
    {"cmdRicerca"_L1, "click cmdRicerca"_L1},
    {"cmbRicercaTappa"_L1, {}},
    {"cmbRicerca"_L1, {}},
    {"cmdCancItin"_L1, "{answers}; click {cmdCancItin|cmdCancMeta}"_L1},
};

} // namespace

QString Hand::given(const QString& wanted, const Form& window) {
    static const struct {
        QLatin1StringView word;
        QString (Hand::*give)();
    } kinds[] = {{"text"_L1, &Hand::text},
                 {"place"_L1, &Hand::place},
                 {"number"_L1, &Hand::number},
                 {"file"_L1, &Hand::file},
                 {"answers"_L1, &Hand::answers}};
    for (const auto& kind : kinds) {
        if (wanted == kind.word)
            return (this->*kind.give)();
    }
    const auto rows = static_cast<std::size_t>(window.mfgTab.rows());
    if (wanted == u"row"_s)
        return count(rows);
    if (wanted == u"above"_s)
        return window.mfgTab.cell(1 + below(rows), 1);
    if (wanted == u"route"_s)
        return QStringList{u"scozia"_s, u"grecia"_s, u"portogallo"_s}[route_];
    return wanted.startsWith(u'<') ? count(wanted.sliced(1).toUInt()) : wanted;
}

QString Hand::filled(const QString& line, const Form& window) {
    QStringList parts = line.split(u'{');
    QString full = parts.takeFirst();
    for (const QString& part : parts) {
        const auto close = part.indexOf(u'}');
        const QStringList choice = part.first(close).split(u'|');
        full += given(oneOf(choice), window) + part.sliced(close + 1);
    }
    return full;
}

/// Before some clicks the user thinks of something to do meanwhile.
void Hand::plan(const QString& lines, const Form& window) {
    static const QStringList meanwhile = u"click cmdEsce|click cmdCalcola|vars|start|stop|row mfgTab 2|"
                                         u"set txtLocalita X|click cmdFine"_s.split(u'|');
    for (QString line : lines.split(u"; "_s)) {
        if (line[1] == u'?') {
            if (!oneIn(static_cast<std::size_t>(line[0].digitValue())))
                continue;
            line.remove(0, 3);
        }
        if (line.startsWith(u'+')) {
            plan(std::ranges::find(works, line.sliced(1), &Work::door)->lines, window);
            continue;
        }
        if (line.startsWith(u"click "_s) && oneIn(10))
            planned_.push_back(u"during "_s + oneOf(meanwhile));
        planned_.push_back(filled(line, window));
    }
}

/// Out of wherever the user is.
void Hand::planWayOut(const Form& window) {
    planned_.push_back(answers());
    for (const Button* const button :
         {&window.cmdFine, &window.cmdSelStampante(1), &window.cmdFineInserimento, &window.cmdInsEsegui(1),
          &window.cmdEsegui(1), &window.cmdImExp(1), &window.cmdTappaSEl(3), &window.cmdStampaGuida(1)}) {
        if (button->reachable())
            planned_.push_back(u"click "_s + button->name());
    }
}

void Hand::planWork(const Form& window) {
    std::vector<const Work*> possible;
    for (const Work& work : works) {
        if (window.find(work.door)->reachable())
            possible.push_back(&work);
    }
    if (possible.empty() || oneIn(10))
        return planWayOut(window);
    const Work& work = *oneOf(possible);
    work.lines.isEmpty() ? planned_.push_back(onControl(*window.find(work.door))) : plan(work.lines, window);
}

} // namespace vanzer::hostile
