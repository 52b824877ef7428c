#include "hostile/hand.h"

#include <array>
#include <iterator>
#include <vector>

namespace vanzer::hostile {

using namespace Qt::StringLiterals;

namespace {

const QStringList& texts() {
    static const QStringList all{u""_s,
                                 u" "_s,
                                 u"   "_s,
                                 u"x"_s,
                                 QString(300, u'l'),
                                 QString(5000, u'à'),
                                 u"'"_s,
                                 u"''"_s,
                                 u"\""_s,
                                 u"`"_s,
                                 u"L'AQUILA"_s,
                                 u"O'; DROP TABLE Itinerari; --"_s,
                                 u"*"_s,
                                 u"?"_s,
                                 u"#"_s,
                                 u"%"_s,
                                 u"_"_s,
                                 u"[A-Z]*"_s,
                                 u"[!a]"_s,
                                 u"["_s,
                                 u"]"_s,
                                 u"("_s,
                                 u")"_s,
                                 u"ROMA (X)"_s,
                                 u"ROMA (Y"_s,
                                 u"(X)"_s,
                                 u" (notte)"_s,
                                 u"> a Roma"_s,
                                 u"*VV"_s,
                                 u"-5"_s,
                                 u"-"_s,
                                 u"+"_s,
                                 u"0"_s,
                                 u"00"_s,
                                 u"000"_s,
                                 u"007"_s,
                                 u"1"_s,
                                 u"9"_s,
                                 u"24"_s,
                                 u"25"_s,
                                 u"59"_s,
                                 u"60"_s,
                                 u"99"_s,
                                 u"999"_s,
                                 u"9999"_s,
                                 u"99999"_s,
                                 u"999999"_s,
                                 u"1.234"_s,
                                 u"1,5"_s,
                                 u"0.5"_s,
                                 u"2147483647"_s,
                                 u"-2147483648"_s,
                                 u"99999999999999999999"_s,
                                 u"1e999"_s,
                                 u"1e5"_s,
                                 u"1d3"_s,
                                 u"&HFF"_s,
                                 u"NaN"_s,
                                 u"inf"_s,
                                 u"24:00"_s,
                                 u"99:99"_s,
                                 u"00:00"_s,
                                 u"12.30"_s,
                                 u"2400"_s,
                                 u"31/02/2003"_s,
                                 u"29/02/2100"_s,
                                 u"00/00/0000"_s,
                                 u"G1"_s,
                                 u"G8"_s,
                                 u"G9"_s,
                                 u"01:30"_s,
                                 u"A-B"_s,
                                 u"--"_s,
                                 u"B-A-a"_s,
                                 u"Città di Forlì è più là"_s,
                                 u"ŁÓDŹ"_s,
                                 u"Αθήνα"_s,
                                 u"ß"_s,
                                 u"İstanbul"_s,
                                 u"e\u0301\u0300"_s,
                                 u"😀🚐"_s,
                                 u"\u202Eatrabla"_s,
                                 u"ÿþý"_s,
                                 u"aÿbþcýd"_s,
                                 u"^"_s,
                                 u"a^b"_s,
                                 u"a\\\\b"_s,
                                 u"\\n"_s,
                                 u"riga\\nriga"_s,
                                 u"\\t"_s,
                                 u"a\\tb"_s,
                                 u"\u0001\u0007"_s,
                                 u"\u007F"_s,
                                 u"\uFFFD"_s,
                                 u"\uFEFF"_s,
                                 u"Rif. 3, cs"_s,
                                 u"db"_s,
                                 u"DB12"_s,
                                 u"TRAGH"_s,
                                 u"A1"_s,
                                 u"SS16"_s,
                                 u"Autostrada"_s,
                                 u"AUTOSTRADA DEL SOLE"_s,
                                 u"True"_s,
                                 u"Falso"_s,
                                 QString::fromLatin1("a\0b", 3),
                                 QString(QChar(0xD800)),
                                 QString(64, u'*'),
                                 QString(30, u'('),
                                 u"[10-20]"_s,
                                 u"[Park: 7]"_s,
                                 u"Ottimo"_s,
                                 u"Campeggio"_s,
                                 u"#commento"_s};
    return all;
}

const QStringList& places() {
    static const QStringList all{u"ROMA"_s,       u"ROMA NORD"_s,  u"BOLOGNA"_s,   u"L'AQUILA"_s,    u"HELSINKI"_s,
                                 u"LÜBECK"_s,     u"TRAVEMÜNDE"_s, u"CAPO NORD"_s, u"ROMA (PARK)"_s, u"CASA"_s,
                                 u"San Marino"_s, u"ALTA"_s,       u"BOLOGNA"_s};
    return all;
}

const QStringList& keyCodes() {
    static const QStringList all{u"0"_s,     u"8"_s,       u"9"_s,       u"10"_s, u"13"_s, u"27"_s,  u"32"_s,
                                 u"33"_s,    u"34"_s,      u"35"_s,      u"36"_s, u"37"_s, u"38"_s,  u"39"_s,
                                 u"40"_s,    u"46"_s,      u"48"_s,      u"65"_s, u"97"_s, u"112"_s, u"8364"_s,
                                 u"55296"_s, u"1114111"_s, u"1114112"_s, u"-1"_s};
    return all;
}

} // namespace

QString Hand::text() {
    QString chosen = oneIn(4) ? place() : oneOf(texts());
    if (oneIn(12))
        chosen += oneOf(texts());
    return chosen;
}

QString Hand::place() {
    return oneIn(6) ? oneOf(texts()) : oneOf(places()) + (oneIn(3) ? u' ' + QString::number(below(40)) : QString());
}

QString Hand::number() {
    return oneIn(5) ? oneOf(texts()) : QString::number(below(oneIn(4) ? 2000 : 80));
}

QString Hand::file() {
    static const QStringList all{u"giri.iei"_s,           u"tronco.iei"_s,  u"rotto.bin"_s,  u"vuoto.txt"_s,
                                 u"nuovo.iei"_s,          u"scozia.txt"_s,  u"scozia.csv"_s, u"grecia.txt"_s,
                                 u"grecia.csv"_s,         u"manca.txt"_s,   u"cartella"_s,   u"nuovo.pdf"_s,
                                 u"cartella/nuovo.iei"_s, u"manca/x.iei"_s, u"-"_s,          u"Vanzer.mdb"_s};
    return u"file "_s + oneOf(all);
}

QString Hand::answers() {
    static const QStringList all{u"answer 6"_s, u"answer 6 6"_s, u"answer 6 6 6"_s, u"answer 7"_s,
                                 u"answer 2"_s, u"answer 1"_s,   u"answer 7 6"_s,   u"answer 6 7"_s};
    return oneIn(3) ? oneOf(all) : u"answer 6"_s;
}

void Hand::plan(const QStringList& lines) {
    planned_.insert(planned_.end(), lines.begin(), lines.end());
}

void Hand::planAnswers() {
    planned_.push_back(answers());
}

void Hand::planTrip() {
    plan({u"click cmdNuovo"_s, u"set txtLocalita "_s + place(), u"set txtNazione "_s + text()});
    if (oneIn(2))
        plan({u"set cmbGiorni "_s + number()});
    if (oneIn(4))
        plan({u"set cmbInizio("_s + QString::number(below(5)) + u") "_s + number()});
    planAnswers();
    plan({u"click cmdSalva"_s, u"click cmdItinerario"_s});
    for (int legs = below(6); legs > 0; --legs)
        planLeg();
}

void Hand::planLeg() {
    plan({u"set txtTappa "_s + place(), u"set txtNumStrada "_s + (oneIn(3) ? text() : u"A1"_s),
          u"set txtKm "_s + number()});
    plan({u"option optStrada(%1)"_s.arg(below(4))});
    if (oneIn(3))
        plan({u"set cmbSosta(%1) "_s.arg(below(3)) + number()});
    if (oneIn(6))
        plan({u"check chkMeta(%1) 1"_s.arg(below(2))});
    if (oneIn(8))
        plan({u"check chkEndDay 1"_s});
    plan({oneIn(4) ? u"click cmdAggiunge"_s : u"click cmdInserisce"_s});
}

void Hand::planGuide() {
    plan({u"click cmdGuidaCitta"_s, u"row mfgTab %1"_s.arg(1 + below(9)), u"set txtGDescr "_s + text(),
          u"set txtGGruppo "_s + (oneIn(2) ? u"A-B"_s : text()), u"set cmbGH "_s + (oneIn(2) ? u"01"_s : number()),
          u"set cmbGM "_s + (oneIn(2) ? u"30"_s : number()), u"click cmdSalvaRiga"_s});
    if (oneIn(3))
        plan({u"keydown txtGDescr "_s + oneOf(keyCodes())});
    if (oneIn(3))
        plan({answers(), u"click cmdCancellaRiga"_s});
    if (oneIn(3))
        plan({u"set txtGDescr "_s + text(), u"click cmdFind"_s});
    if (oneIn(2))
        plan({u"click cmdFineInserimento"_s});
}

void Hand::planExchange() {
    plan({u"click cmdExport"_s, file(), u"click cmdImportExport(%1)"_s.arg(below(2))});
    plan({oneIn(2) ? u"click cmdTutto(%1)"_s.arg(below(2)) : u"row mfgImExp(%1) %2"_s.arg(below(2)).arg(below(5))});
    plan({file(), answers(), oneIn(8) ? u"during click cmdEsce"_s : u"get cmdEsce"_s, u"click cmdImExp(0)"_s});
}

void Hand::planStretch() {
    plan({u"click cmdModStrada"_s, u"row mfgTab %1"_s.arg(below(9)), u"click cmdTappaSEl(0)"_s,
          u"row mfgTab %1"_s.arg(below(12)), u"click cmdTappaSEl(1)"_s, u"option optTStrada(%1)"_s.arg(below(4)),
          u"click cmdTappaSEl(2)"_s, answers(), u"click cmdTappaSEl(%1)"_s.arg(3 + below(2))});
}

void Hand::planCopy() {
    plan({u"click cmdItinerario"_s, u"click cmdDuplica"_s, u"row mfgCopia %1"_s.arg(1 + below(4)),
          u"row mfgCopia %1"_s.arg(1 + below(9)), u"click cmdAssegna(0)"_s, u"row mfgCopia %1"_s.arg(1 + below(9)),
          u"click cmdAssegna(1)"_s, u"check chkInsSoste %1"_s.arg(below(2)), u"click cmdInsEsegui(0)"_s});
}

void Hand::planRoute() {
    planTrip();
    plan({answers(), u"click cmdCancItin"_s, u"click cmdItinerario"_s, file(), u"click cmdMapPoint"_s, file(),
          u"click cmdSelezionaMete"_s});
}

void Hand::planWork(const Form& window) {
    switch (below(13)) {
    case 0: return planTrip();
    case 1: plan({u"click cmdItinerario"_s}); return planLeg();
    case 2: plan({answers(), u"click cmdFine"_s}); return;
    case 3: plan({answers(), u"click cmdMemorizza"_s}); return;
    case 4: return planGuide();
    case 5: return planExchange();
    case 6: return planStretch();
    case 7: return planCopy();
    case 8: return planRoute();
    case 9:
        plan({u"set cmbGiorni "_s + number(), oneIn(6) ? u"during click cmdEsce"_s : u"get cmdEsce"_s,
              u"click cmdCalcola"_s});
        return;
    case 10:
        plan({u"click cmdStampa"_s, u"check chkTabella %1"_s.arg(below(2)), u"click cmdEsegui(0)"_s, file(),
              u"click cmdSelStampante(0)"_s});
        return;
    case 11: plan({answers(), u"click cmdConverte"_s}); return;
    default:
        plan({u"click cmdRicerca"_s});
        if (!window.cmbRicerca.entries().isEmpty())
            plan({u"pick cmbRicerca "_s + oneOf(window.cmbRicerca.entries())});
    }
}

QString Hand::onControl(const Control& control) {
    const QString name = u' ' + control.name();
    if (qobject_cast<const Button*>(&control) != nullptr)
        return u"click"_s + name;
    if (qobject_cast<const CheckBox*>(&control) != nullptr)
        return u"check"_s + name + (oneIn(2) ? u" 1"_s : u" 0"_s);
    if (qobject_cast<const OptionButton*>(&control) != nullptr)
        return u"option"_s + name;
    if (qobject_cast<const Grid*>(&control) != nullptr) {
        if (oneIn(3))
            return oneIn(2) ? u"dblclick"_s + name : u"key"_s + name + u' ' + oneOf(keyCodes());
        return u"row"_s + name + u' ' + QString::number(below(oneIn(5) ? 200 : 12));
    }
    if (const auto* list = qobject_cast<const ListControl*>(&control);
        list != nullptr && !oneIn(3) && list->count() > 0)
        return u"pick"_s + name + u' ' + oneOf(list->entries());
    switch (below(6)) {
    case 0: return u"type"_s + name + u' ' + text();
    case 1: return u"key"_s + name + u' ' + oneOf(keyCodes());
    case 2: return u"keydown"_s + name + u' ' + oneOf(keyCodes());
    case 3: return u"leave"_s + name;
    default: return u"set"_s + name + u' ' + text();
    }
}

QString Hand::anything(const Form& window) {
    static const QStringList words{u"set"_s,   u"type"_s, u"key"_s, u"keydown"_s,  u"leave"_s, u"check"_s, u"option"_s,
                                   u"click"_s, u"pick"_s, u"row"_s, u"dblclick"_s, u"get"_s,   u"grid"_s};
    return oneOf(words) + u' ' + oneOf(window.controls())->name() + u' ' + (oneIn(2) ? text() : number());
}

QString Hand::word() {
    switch (below(12)) {
    case 0: return answers();
    case 1: return file();
    case 2: return u"now 20%1-0%2-1%3T1%4:30"_s.arg(10 + below(80)).arg(1 + below(9)).arg(below(10)).arg(below(10));
    case 3: return u"now "_s + text();
    case 4: return u"vars"_s;
    case 5: return u"pages"_s;
    case 6: return u"table "_s + (oneIn(2) ? u"Itinerari"_s : text());
    case 7: return u"cat "_s + file().mid(5);
    case 8: return u"start"_s;
    case 9: return u"during "_s + (oneIn(2) ? u"click cmdEsce"_s : u"vars"_s);
    case 10: return u"# "_s + text();
    default: return text() + u' ' + text();
    }
}

QString Hand::next(const Form* window) {
    if (window == nullptr) {
        planned_.clear();
        return oneIn(8) ? word() : u"start"_s;
    }
    if (planned_.empty() && oneIn(2))
        planWork(*window);
    if (!planned_.empty() && !oneIn(12)) {
        QString line = planned_.front();
        planned_.pop_front();
        return line;
    }
    if (oneIn(8))
        return oneIn(2) ? word() : anything(*window);
    std::vector<const Control*> reachable;
    for (const auto& control : window->controls()) {
        if (control->reachable() && qobject_cast<const Frame*>(control.get()) == nullptr &&
            qobject_cast<const Label*>(control.get()) == nullptr)
            reachable.push_back(control.get());
    }
    return reachable.empty() ? word() : onControl(*oneOf(reachable));
}

} // namespace vanzer::hostile
