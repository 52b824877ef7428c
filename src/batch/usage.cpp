// SPDX-License-Identifier: MIT
#include "batch/usage.h"

#include <array>

#include <QStringList>

namespace vanzer::batch {

namespace {

constexpr std::array usages{
    Usage{u"start", u"opens the window on the archive; a second one closes it and opens it again"},
    Usage{u"stop", u"closes everything and ends"},
    Usage{u"set NAME TEXT", u"writes a text box, or a drop-down list, which picks TEXT if it has it"},
    Usage{u"type NAME TEXT", u"presses the keys of TEXT, one by one"},
    Usage{u"key NAME CODE", u"presses the key with that character code"},
    Usage{u"keydown NAME CODE", u"holds a key down"},
    Usage{u"leave NAME", u"takes the focus away"},
    Usage{u"check NAME 0|1", u"puts a check box off or on"},
    Usage{u"option NAME(i)", u"chooses an option button"},
    Usage{u"click NAME", u"clicks a button"},
    Usage{u"pick NAME TEXT", u"clicks the entry TEXT of a list"},
    Usage{u"row GRID R", u"clicks row R of a grid"},
    Usage{u"dblclick GRID", u"double-clicks the current row"},
    Usage{u"answer N ...", u"answers the next message boxes: 1 OK, 2 cancel, 6 yes, 7 no"},
    Usage{u"file PATH | file -", u"answers the next file dialog with a path, or cancels it"},
    Usage{u"during COMMAND", u"carries COMMAND out while the next command runs"},
    Usage{u"now YYYY-MM-DDTHH:MM", u"sets the clock"},
    Usage{u"export ics FILE", u"writes the computed schedule as a calendar"},
    Usage{u"export csv FILE", u"writes the computed schedule as a table"},
    Usage{u"get NAME", u"tells the state of a control"},
    Usage{u"grid NAME", u"tells the cells of a grid"},
    Usage{u"columns NAME", u"tells widths and alignments of a grid's columns"},
    Usage{u"vars", u"tells the working state"},
    Usage{u"table NAME", u"tells the records of a stored table"},
    Usage{u"cat FILE", u"tells the lines of a text file in code page 1252"},
    Usage{u"pages", u"tells what was printed since the last time"},
};

struct Option {
    QStringView name;
    QStringView does;
};
constexpr std::array options{
    Option{u"--dir DIR", u"the folder of the archive; the current one without it"},
    Option{u"--now YYYY-MM-DDTHH:MM", u"fixes the clock"},
    Option{u"--script FILE", u"reads the commands from a file instead of the standard input"},
    Option{u"--help", u"prints this"},
    Option{u"--version", u"prints the version"},
};

QString line(QStringView name, QStringView does) {
    constexpr qsizetype column = 26;
    return QStringLiteral("  ") + name.toString().leftJustified(column) + does.toString();
}

} // namespace

std::span<const Usage> commandUsage() {
    return usages;
}

QString helpText() {
    QStringList lines{
        QStringLiteral("Usage: vanzer-batch [--dir DIR] [--now TIME] [--script FILE]"),
        QString(),
        QStringLiteral(
            "The window of Vanzer without a display. Reads commands, one a line, and answers each with a JSON"),
        QStringLiteral("object on a line of its own. Empty lines and lines that begin with # are skipped."),
        QString(),
        QStringLiteral("Arguments:")};
    for (const Option& option : options)
        lines << line(option.name, option.does);
    lines << QString() << QStringLiteral("Commands:");
    for (const Usage& usage : usages)
        lines << line(usage.command, usage.does);
    lines << QString()
          << QStringLiteral("Controls are named as in the window's design, with their index: txtLocalita, cmbOra(3). "
                            "\\n, \\t and \\\\")
          << QStringLiteral("in TEXT are a line break, a tab and a backslash. Paths are taken from --dir.") << QString()
          << QStringLiteral("Exit status: 0 at stop or at the end of the commands, 2 for bad arguments.") << QString()
          << QStringLiteral("Example:")
          << QStringLiteral("  printf 'start\\nclick cmdCalcola\\ngrid mfgTab\\nexport ics viaggio.ics\\n' |")
          << QStringLiteral("      vanzer-batch --dir ~/.local/share/Vanzer");
    return lines.join(u'\n');
}

} // namespace vanzer::batch
