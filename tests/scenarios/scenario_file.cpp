// SPDX-License-Identifier: MIT
#include "scenario_file.h"

#include <QFile>
#include <QSaveFile>

namespace scenarios {

namespace {

const QByteArray arrow = "=> ";

/// The lines of a file. Empty if it can't be read.
QList<QByteArray> linesOf(const QString& path) {
    QFile file(path);
    QList<QByteArray> lines = file.open(QIODevice::ReadOnly) ? file.readAll().split('\n') : QList<QByteArray>();
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

bool isCommand(const QByteArray& line) {
    return !line.isEmpty() && !line.startsWith('#') && !line.startsWith(arrow);
}

void takeLine(const QByteArray& line, int number, Scenario& scenario) {
    if (isCommand(line)) {
        scenario.steps.append({line, {}, number});
    } else if (line.startsWith(arrow)) {
        if (scenario.steps.isEmpty() || !scenario.steps.last().expected.isEmpty())
            scenario.fault = QStringLiteral("line %1: an answer without a command").arg(number);
        else
            scenario.steps.last().expected = line.mid(arrow.size());
    } else if (scenario.steps.isEmpty() && line.startsWith("# locale:")) {
        scenario.locale = QString::fromUtf8(line.mid(9)).trimmed();
    } else if (scenario.steps.isEmpty() && line.startsWith("# files:")) {
        scenario.filesFolder = QString::fromUtf8(line.mid(8)).trimmed();
    }
}

} // namespace

Scenario readScenario(const QString& path) {
    Scenario scenario;
    scenario.path = path;
    scenario.examples = path.endsWith(u".md");
    QByteArray end; // the line that ends the current block of examples
    const QList<QByteArray> lines = linesOf(path);
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArray& line = lines.at(i);
        if (scenario.examples && end.isEmpty())
            end = line == "```vanzer-batch" ? "```" : line == "<!-- vanzer-batch" ? "-->" : "";
        else if (scenario.examples && line == end)
            end.clear();
        else
            takeLine(line, i + 1, scenario);
    }
    if (scenario.steps.isEmpty() || !end.isEmpty())
        scenario.fault = scenario.steps.isEmpty() ? QStringLiteral("no commands") : QStringLiteral("an open block");
    return scenario;
}

bool rewriteScenario(const Scenario& scenario) {
    const QList<QByteArray> lines = linesOf(scenario.path);
    QSaveFile file(scenario.path);
    if (lines.isEmpty() || !file.open(QIODevice::WriteOnly))
        return false;
    auto step = scenario.steps.cbegin();
    for (const QByteArray& line : lines) {
        if (line.startsWith(arrow))
            continue;
        file.write(line + '\n');
        if (isCommand(line))
            file.write(arrow + (step++)->expected + '\n');
    }
    return file.commit();
}

} // namespace scenarios
