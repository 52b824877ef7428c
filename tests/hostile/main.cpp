// Lets users who do anything loose on the program: vanzer_hostile [--pairs] [--scripts N] [--from NUMBER] [--lines N]
//                                                   vanzer_hostile [--pairs] --show NUMBER
//                                                   vanzer_hostile [--pairs] --shrink NUMBER
//
// With --pairs the users are those who give each command with each other one inside it; 0 scripts are all of them.
// Scripts are numbered, the same number is the same user. The script at hand lies in a file, below its number:
// where the program breaks it is left there. --show prints the lines of a script while it runs; --shrink runs it with
// ever fewer lines, each time in a process of its own, and prints those without which the program doesn't break.

#include <cstdio>
#include <memory>
#include <optional>

#include <unistd.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

#include "hostile/hand.h"
#include "hostile/pairs.h"
#include "hostile/script.h"
#include "hostile/shrink.h"

namespace {

using namespace vanzer::hostile;
using namespace Qt::StringLiterals;

/// The script of the user of that number, of so many lines.
Script numbered(std::uint64_t number, int lines) {
    const auto hand = std::make_shared<Hand>(number);
    const int folder = hand->below(Folders::choices);
    return {number, folder, hand->typesMarks(),
            [hand, lines](const vanzer::Form* window) mutable { return lines-- > 0 ? hand->next(window) : QString(); }};
}

void say(const QString& line) {
    std::printf("%s\n", line.toUtf8().constData());
    std::fflush(stdout);
}

int show(Script script, const Folders& folders, ScriptFile& file) {
    script.next = [next = script.next](const vanzer::Form* window) {
        const QString line = next(window);
        say(line);
        return line;
    };
    Totals totals;
    const QString broken = run(script, folders, file, totals);
    file.remove();
    say(u"# "_s + (broken.isEmpty() ? u"all held"_s : broken));
    return broken.isEmpty() ? 0 : 1;
}

int shrink(const Script& script, const Folders& folders, ScriptFile& file) {
    const auto needed = shrunk(script, folders, file);
    file.remove();
    say(needed ? needed->join(u'\n') : u"# all held"_s);
    return needed ? 0 : 1;
}

void report(const Totals& totals) {
    std::printf("%ld scripts, %ld lines: %ld refused, %ld not understood, %ld boxes, %zu controls. Looked at:",
                totals.scripts, totals.lines, totals.refused, totals.notUnderstood, totals.boxes, totals.worked.size());
    for (const auto& [what, times] : totals.looks)
        std::printf(" %s %ld;", what.c_str(), times);
    std::printf("\n");
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOptions({{u"scripts"_s, {}, u"N"_s, u"100"_s},
                       {u"from"_s, {}, u"NUMBER"_s, u"1"_s},
                       {u"lines"_s, {}, u"N"_s, u"60"_s},
                       {u"pairs"_s, {}},
                       {u"show"_s, {}, u"NUMBER"_s},
                       {u"shrink"_s, {}, u"NUMBER"_s}});
    parser.process(application);
    const Folders folders;
    ScriptFile file(QDir::temp().filePath(u"vanzer_hostile_%1"_s.arg(getpid())));
    std::optional<Pairs> pairs;
    if (parser.isSet(u"pairs"_s))
        pairs.emplace(folders);
    const auto scriptOf = [&pairs, lines = parser.value(u"lines"_s).toInt()](std::uint64_t number) {
        return pairs ? pairs->script(number) : numbered(number, lines);
    };
    if (parser.isSet(u"show"_s))
        return show(scriptOf(parser.value(u"show"_s).toULongLong()), folders, file);
    if (parser.isSet(u"shrink"_s))
        return shrink(scriptOf(parser.value(u"shrink"_s).toULongLong()), folders, file);
    const std::uint64_t from = parser.value(u"from"_s).toULongLong();
    const std::uint64_t wanted = parser.value(u"scripts"_s).toULongLong();
    const std::uint64_t count = wanted == 0 && pairs ? pairs->count() : wanted;
    Totals totals;
    for (std::uint64_t number = from; number < from + count; ++number) {
        const QString broken = run(scriptOf(number), folders, file, totals);
        if (!broken.isEmpty()) {
            say(u"script %1, which is left in %2: %3"_s.arg(QString::number(number), file.path(), broken));
            return 1;
        }
    }
    file.remove();
    report(totals);
    return count > 0 ? 0 : 1;
}
