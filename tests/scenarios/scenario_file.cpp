#include "scenario_file.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace scenarios {

namespace {

const QByteArray arrow = "=> ";

QList<QByteArray> linesOf(const QString& path, QString& fault) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fault = QStringLiteral("cannot read: ") + file.errorString();
        return {};
    }
    QList<QByteArray> lines = file.readAll().split('\n');
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

bool isCommand(const QByteArray& line) {
    return !line.isEmpty() && !line.startsWith('#') && !line.startsWith(arrow);
}

void readHeader(const QByteArray& line, Scenario& scenario) {
    const auto take = [&line](const char* key, QString& value) {
        if (line.startsWith(key))
            value = QString::fromUtf8(line.mid(static_cast<qsizetype>(qstrlen(key)))).trimmed();
    };
    take("# pending:", scenario.pending);
    take("# locale:", scenario.locale);
    take("# files:", scenario.filesFolder);
}

void readExpected(const QByteArray& line, int number, Scenario& scenario) {
    if (scenario.steps.isEmpty() || !scenario.steps.last().expected.isEmpty())
        scenario.fault = QStringLiteral("line %1: an answer without a command").arg(number);
    else
        scenario.steps.last().expected = line.mid(arrow.size());
}

} // namespace

QString Scenario::name() const {
    return QFileInfo(path).completeBaseName();
}

Scenario readScenario(const QString& path) {
    Scenario scenario;
    scenario.path = path;
    const QList<QByteArray> lines = linesOf(path, scenario.fault);
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArray& line = lines.at(i);
        if (line.startsWith(arrow))
            readExpected(line, i + 1, scenario);
        else if (isCommand(line))
            scenario.steps.append({line, {}, i + 1});
        else if (scenario.steps.isEmpty())
            readHeader(line, scenario);
    }
    if (scenario.fault.isEmpty() && scenario.steps.isEmpty())
        scenario.fault = QStringLiteral("no commands");
    return scenario;
}

Scenario readExamples(const QString& path) {
    Scenario scenario;
    scenario.path = path;
    QByteArray end; // of the block at hand
    const QList<QByteArray> lines = linesOf(path, scenario.fault);
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArray& line = lines.at(i);
        if (end.isEmpty())
            end = line == "```vanzer-batch" ? "```" : line == "<!-- vanzer-batch" ? "-->" : "";
        else if (line == end)
            end.clear();
        else if (line.startsWith(arrow))
            readExpected(line, i + 1, scenario);
        else if (isCommand(line))
            scenario.steps.append({line, {}, i + 1, true});
    }
    if (scenario.fault.isEmpty() && (scenario.steps.isEmpty() || !end.isEmpty()))
        scenario.fault = scenario.steps.isEmpty() ? QStringLiteral("no examples") : QStringLiteral("an open block");
    return scenario;
}

bool rewriteScenario(const Scenario& scenario) {
    QString fault;
    const QList<QByteArray> lines = linesOf(scenario.path, fault);
    QSaveFile file(scenario.path);
    if (!fault.isEmpty() || !file.open(QIODevice::WriteOnly))
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
