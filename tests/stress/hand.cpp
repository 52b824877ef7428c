// SPDX-License-Identifier: MIT
#include "stress/users.h"

#include <map>
#include <vector>

#include "stress/desk.h"

namespace vanzer::stress {

namespace {

/// Texts that one line of a file can't hold.
const QStringList& otherTexts() {
    static const QStringList all =
        u"| |   |\u0001\u0007|\u007F|\u202Eatrabla|\uFEFF|\u200D\u200B|\u2028|\u00A0"_s.split(u'|') +
        QStringList{QString(300, u'l'),
                    QString(5000, u'à'),
                    QString(5000, u'9'),
                    QString(96, u'\''),
                    QString(64, u'*'),
                    QString(30, u'('),
                    QString(30, QChar(0x301)),
                    QString(QChar(0xD800)),
                    QString::fromLatin1("a\0b", 3),
                    u"TRAGH "_s.repeated(20),
                    u"👨\u200D👩\u200D👧"_s.repeated(12),
                    u"x"_s + u"🚐"_s.repeated(60)};
    return all;
}

template<typename Kind> bool is(const Control& control) {
    return qobject_cast<const Kind*>(&control) != nullptr;
}

} // namespace

QString Hand::drawn(const char* list) {
    const QStringList lines = section("users.txt", QString::fromLatin1(list));
    return oneOf(qstrcmp(list, "texts") == 0 ? lines + otherTexts() : lines);
}

QString Hand::text() {
    if (typesMarks_ && oneIn(5))
        return drawn("marks");
    const QString chosen = oneIn(4) ? place() : drawn("texts");
    return oneIn(12) ? chosen + drawn("texts") : chosen;
}

QString Hand::place() {
    if (oneIn(6))
        return drawn(typesMarks_ && oneIn(2) ? "marks" : "texts");
    const QString name = drawn("places");
    return oneIn(3) ? name + u' ' + count(40) : name;
}

QString Hand::onControl(const Control& control) {
    const QString name = control.name();
    if (is<Button>(control))
        return u"click "_s + name;
    if (is<CheckBox>(control))
        return u"check "_s + name + u' ' + count(2);
    if (is<OptionButton>(control))
        return u"option "_s + name;
    const auto* list = qobject_cast<const ListControl*>(&control);
    if (list != nullptr && list->count() > 0 && !oneIn(3))
        return u"pick "_s + name + u' ' + oneOf(list->entries());
    const int kind = below(6);
    if (kind == 0)
        return u"key "_s + name + u' ' + drawn("keys");
    if (is<Grid>(control))
        return kind == 1 ? u"dblclick "_s + name : u"row "_s + name + u' ' + count(oneIn(5) ? 200 : 12);
    switch (kind) {
    case 1: return u"type "_s + name + u' ' + text();
    case 2: return u"keydown "_s + name + u' ' + drawn("keys");
    case 3: return u"leave "_s + name;
    default: return u"set "_s + name + u' ' + text();
    }
}

QString Hand::onReachableControl(const Form& window) {
    std::vector<const Control*> reachable;
    for (const auto& control : window.controls()) {
        if (control->reachable() && !is<Frame>(*control) && !is<Label>(*control))
            reachable.push_back(control.get());
    }
    return onControl(reachable.empty() ? *oneOf(window.controls()) : *oneOf(reachable));
}

/// Commands that don't fit their control, or have unfit arguments.
QString Hand::anything(const Form& window) {
    const QString command = drawn("words");
    const QString control = oneIn(10) ? text() : oneOf(window.controls())->name();
    const QString start = (oneIn(20) ? command.toUpper() : command) + u' ' + control + u' ';
    return start + (oneIn(2) ? text() : number());
}

QString Hand::word(const Form* window) {
    static const QStringList plain{u"vars"_s, u"pages"_s, u"start"_s};
    switch (below(14)) {
    case 0: return answers();
    case 1: return file();
    case 2: return u"now 20%1-0%2-1%3T1%4:30"_s.arg(count(80), 2, u'0').arg(1 + below(9)).arg(below(10)).arg(below(10));
    case 3: return u"now "_s + text();
    case 4:
    case 5:
    case 6: return oneOf(plain);
    case 7: return u"table "_s + (oneIn(2) ? store::TabelleNomi(store::primaTabella + below(4)) : text());
    case 8: return u"cat "_s + file().sliced(5);
    case 9:
    case 10: return u"during "_s + (window == nullptr || oneIn(3) ? u"start"_s : onControl(*oneOf(window->controls())));
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
    case 2: return onControl(*oneOf(window->controls()));
    default: return onReachableControl(*window);
    }
}

QString Hand::given(const QString& wanted, const Form& window) {
    using Give = QString (Hand::*)();
    static const std::map<QString, Give> kinds{{u"text"_s, &Hand::text},
                                               {u"place"_s, &Hand::place},
                                               {u"number"_s, &Hand::number},
                                               {u"file"_s, &Hand::file},
                                               {u"answers"_s, &Hand::answers}};
    if (const auto kind = kinds.find(wanted); kind != kinds.end())
        return (this->*kind->second)();
    const auto rows = static_cast<std::size_t>(window.mfgTab.rows());
    if (wanted == u"row"_s)
        return count(rows);
    if (wanted == u"above"_s)
        return window.mfgTab.cell(1 + below(rows), 1);
    if (wanted == u"route"_s)
        return QStringList{u"scozia"_s, u"grecia"_s, u"portogallo"_s}[route_];
    if (wanted.startsWith(u'@'))
        return onControl(*window.find(wanted.sliced(1)));
    return wanted.startsWith(u'<') ? count(wanted.sliced(1).toUInt()) : wanted;
}

QString Hand::filled(const QString& line, const Form& window) {
    QStringList parts = line.split(u'{');
    QString full = parts.takeFirst();
    for (const QString& part : parts) {
        const auto close = part.indexOf(u'}');
        full += given(oneOf(part.first(close).split(u'|')), window) + part.sliced(close + 1);
    }
    return full;
}

void Hand::plan(const QString& lines, const Form& window) {
    for (QString line : lines.split(u"; "_s)) {
        if (line[1] == u'?') {
            if (!oneIn(static_cast<std::size_t>(line[0].digitValue())))
                continue;
            line.remove(0, 3);
        }
        if (line.startsWith(u'+')) {
            plan(entry(section("users.txt", u"work"_s), line.sliced(1)), window);
            continue;
        }
        if (line.startsWith(u"click "_s) && oneIn(10))
            planned_.push_back(u"during "_s + drawn("meanwhile"));
        planned_.push_back(filled(line, window));
    }
}

void Hand::planWork(const Form& window) {
    QStringList possible;
    for (const QString& work : section("users.txt", u"work"_s)) {
        if (window.find(work.section(u": "_s, 0, 0))->reachable())
            possible += work;
    }
    if (!possible.empty() && !oneIn(10))
        return plan(oneOf(possible).section(u": "_s, 1), window);
    planned_.push_back(answers());
    for (const QString& button : section("users.txt", u"ways out"_s)) {
        if (window.find(button)->reachable())
            planned_.push_back(u"click "_s + button);
    }
}

} // namespace vanzer::stress
