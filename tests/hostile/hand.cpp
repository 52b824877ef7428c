#include "hostile/hand.h"

#include <vector>

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
    return oneIn(3) ? name + u' ' + count(40) : name;
}

QString Hand::number() {
    return oneIn(5) ? oneOf(texts()) : count(oneIn(4) ? 2000 : 80);
}

QString Hand::file() {
    return u"file "_s + oneOf(oneIn(20) ? texts() : files());
}

QString Hand::answers() {
    static const QStringList all = u"6|6 6|6 6 6|7|2|1|7 6|6 7"_s.split(u'|');
    return u"answer "_s + (oneIn(3) ? oneOf(all) : all.front());
}

QString Hand::onGrid(const Grid& grid) {
    switch (below(6)) {
    case 0: return u"dblclick "_s + grid.name();
    case 1: return u"key "_s + grid.name() + u' ' + oneOf(keyCodes());
    default: return u"row "_s + grid.name() + u' ' + count(oneIn(5) ? 200 : 12);
    }
}

QString Hand::onText(const Control& control) {
    switch (below(6)) {
    case 0: return u"type "_s + control.name() + u' ' + text();
    case 1: return u"key "_s + control.name() + u' ' + oneOf(keyCodes());
    case 2: return u"keydown "_s + control.name() + u' ' + oneOf(keyCodes());
    case 3: return u"leave "_s + control.name();
    default: return u"set "_s + control.name() + u' ' + text();
    }
}

QString Hand::onControl(const Control& control) {
    if (qobject_cast<const Button*>(&control) != nullptr)
        return u"click "_s + control.name();
    if (qobject_cast<const CheckBox*>(&control) != nullptr)
        return u"check "_s + control.name() + u' ' + count(2);
    if (qobject_cast<const OptionButton*>(&control) != nullptr)
        return u"option "_s + control.name();
    if (const auto* grid = qobject_cast<const Grid*>(&control))
        return onGrid(*grid);
    if (const auto* list = qobject_cast<const ListControl*>(&control);
        list != nullptr && list->count() > 0 && !oneIn(3))
        return u"pick "_s + list->name() + u' ' + oneOf(list->entries());
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
    const QString start = (oneIn(20) ? command.toUpper() : command) + u' ' + control + u' ';
    return start + (oneIn(2) ? text() : number());
}

QString Hand::word(const Form* window) {
    static const QStringList tables{u"MeteVanzer"_s, u"Itinerari"_s, u"GuidaCitta"_s, u"Parametri"_s};
    switch (below(14)) {
    case 0: return answers();
    case 1: return file();
    case 2: return u"now 20%1-0%2-1%3T1%4:30"_s.arg(count(80), 2, u'0').arg(1 + below(9)).arg(below(10)).arg(below(10));
    case 3: return u"now "_s + text();
    case 4: return u"vars"_s;
    case 5: return u"pages"_s;
    case 6: return u"table "_s + (oneIn(2) ? oneOf(tables) : text());
    case 7: return u"cat "_s + file().sliced(5);
    case 8: return u"start"_s;
    case 9:
    case 10: return u"during "_s + (window == nullptr || oneIn(3) ? u"start"_s : onAnyControl(*window));
    case 11: return u"answer "_s + text();
    case 12: return u"# "_s + text();
    default: {
        const QString first = text();
        return first + u' ' + text();
    }
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
