#include "hostile/hand.h"

#include <vector>

#include "hostile/line.h"
#include "hostile/texts.h"

namespace vanzer::hostile {

using namespace Qt::StringLiterals;

QString Hand::text() {
    if (typesMarks_ && oneIn(5))
        return oneOf(marks());
    QString chosen = oneIn(4) ? place() : oneOf(texts());
    if (oneIn(12))
        chosen += oneOf(texts());
    return chosen;
}

QString Hand::place() {
    if (oneIn(6))
        return oneOf(typesMarks_ && oneIn(2) ? marks() : texts());
    const QString name = oneOf(places());
    return oneIn(3) ? line({name, count(40)}) : name;
}

QString Hand::number() {
    return oneIn(5) ? oneOf(texts()) : count(oneIn(4) ? 2000 : 80);
}

QString Hand::file() {
    static const QStringList all{u"giri.iei"_s,
                                 u"tronco.iei"_s,
                                 u"rotto.bin"_s,
                                 u"vuoto.txt"_s,
                                 u"nuovo.iei"_s,
                                 u"whole.iei"_s,
                                 u"quotes_and_breaks.iei"_s,
                                 u"odd_codes.iei"_s,
                                 u"twice.iei"_s,
                                 u"doppio.iei"_s,
                                 u"long_texts.iei"_s,
                                 u"wide.iei"_s,
                                 u"separators_in_names.iei"_s,
                                 u"no_heads.iei"_s,
                                 u"scozia.txt"_s,
                                 u"scozia.csv"_s,
                                 u"grecia.txt"_s,
                                 u"grecia.csv"_s,
                                 u"portogallo.txt"_s,
                                 u"portogallo.csv"_s,
                                 u"brackets.txt"_s,
                                 u"missing_columns.txt"_s,
                                 u"odd_numbers.csv"_s,
                                 u"parts.csv"_s,
                                 u"manca.txt"_s,
                                 u"cartella"_s,
                                 u"nuovo.pdf"_s,
                                 u"cartella/nuovo.iei"_s,
                                 u"manca/x.iei"_s,
                                 u"-"_s,
                                 u"Vanzer.mdb"_s,
                                 u"./Vanzer.mdb"_s,
                                 u"nuovo.pdf"_s};
    return line({u"file"_s, oneIn(20) ? oneOf(texts()) : oneOf(all)});
}

QString Hand::answers() {
    static const QStringList all{u"answer 6"_s, u"answer 6 6"_s, u"answer 6 6 6"_s, u"answer 7"_s,
                                 u"answer 2"_s, u"answer 1"_s,   u"answer 7 6"_s,   u"answer 6 7"_s};
    return oneIn(3) ? oneOf(all) : u"answer 6"_s;
}

QString Hand::onGrid(const Grid& grid) {
    switch (below(6)) {
    case 0: return line({u"dblclick"_s, grid.name()});
    case 1: return line({u"key"_s, grid.name(), oneOf(keyCodes())});
    default: return line({u"row"_s, grid.name(), count(oneIn(5) ? 200 : 12)});
    }
}

QString Hand::onText(const Control& control) {
    switch (below(6)) {
    case 0: return line({u"type"_s, control.name(), text()});
    case 1: return line({u"key"_s, control.name(), oneOf(keyCodes())});
    case 2: return line({u"keydown"_s, control.name(), oneOf(keyCodes())});
    case 3: return line({u"leave"_s, control.name()});
    default: return line({u"set"_s, control.name(), text()});
    }
}

QString Hand::onControl(const Control& control) {
    if (qobject_cast<const Button*>(&control) != nullptr)
        return line({u"click"_s, control.name()});
    if (qobject_cast<const CheckBox*>(&control) != nullptr)
        return line({u"check"_s, control.name(), count(2)});
    if (qobject_cast<const OptionButton*>(&control) != nullptr)
        return line({u"option"_s, control.name()});
    if (const auto* grid = qobject_cast<const Grid*>(&control))
        return onGrid(*grid);
    if (const auto* list = qobject_cast<const ListControl*>(&control);
        list != nullptr && list->count() > 0 && !oneIn(3))
        return line({u"pick"_s, list->name(), oneOf(list->entries())});
    return onText(control);
}

QString Hand::onAnyControl(const Form& window) {
    return onControl(*oneOf(window.controls()));
}

QString Hand::onReachableControl(const Form& window) {
    std::vector<const Control*> reachable;
    for (const auto& control : window.controls()) {
        if (control->reachable() && qobject_cast<const Frame*>(control.get()) == nullptr &&
            qobject_cast<const Label*>(control.get()) == nullptr)
            reachable.push_back(control.get());
    }
    return reachable.empty() ? onAnyControl(window) : onControl(*oneOf(reachable));
}

/// Commands that don't fit their control, or whose arguments don't fit them.
QString Hand::anything(const Form& window) {
    static const QStringList words{u"set"_s,   u"type"_s, u"key"_s, u"keydown"_s,  u"leave"_s, u"check"_s, u"option"_s,
                                   u"click"_s, u"pick"_s, u"row"_s, u"dblclick"_s, u"get"_s,   u"grid"_s};
    const QString command = oneOf(words);
    const QString control = oneIn(10) ? text() : oneOf(window.controls())->name();
    return line({oneIn(20) ? command.toUpper() : command, control, oneIn(2) ? text() : number()});
}

QString Hand::word(const Form* window) {
    static const QStringList tables{u"MeteVanzer"_s, u"Itinerari"_s, u"GuidaCitta"_s, u"Parametri"_s};
    switch (below(14)) {
    case 0: return answers();
    case 1: return file();
    case 2: return u"now 20%1-0%2-1%3T1%4:30"_s.arg(count(80), 2, u'0').arg(1 + below(9)).arg(below(10)).arg(below(10));
    case 3: return line({u"now"_s, text()});
    case 4: return u"vars"_s;
    case 5: return u"pages"_s;
    case 6: return line({u"table"_s, oneIn(2) ? oneOf(tables) : text()});
    case 7: return line({u"cat"_s, file().sliced(5)});
    case 8: return u"start"_s;
    case 9:
    case 10: return line({u"during"_s, window == nullptr || oneIn(3) ? u"start"_s : onAnyControl(*window)});
    case 11: return line({u"answer"_s, text()});
    case 12: return line({u"#"_s, text()});
    default: return line({text(), text()});
    }
}

QString Hand::next(const Form* window) {
    if (window == nullptr) {
        planned_.clear();
        return oneIn(8) ? word(nullptr) : u"start"_s;
    }
    if (planned_.empty() && !oneIn(3))
        planWork(*window);
    if (!planned_.empty() && !oneIn(15)) {
        const QString planned = planned_.front();
        planned_.pop_front();
        return planned;
    }
    switch (below(8)) {
    case 0: return word(window);
    case 1: return anything(*window);
    case 2: return onAnyControl(*window);
    default: return onReachableControl(*window);
    }
}

} // namespace vanzer::hostile
