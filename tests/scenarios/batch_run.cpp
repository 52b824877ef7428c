#include "batch_run.h"

#include <algorithm>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

namespace scenarios {

namespace {

constexpr int longestRun = 300'000; // ms; sanitized builds are slow

bool copyFiles(const QString& from, const QString& to) {
    const QDir source(from);
    if (!source.exists())
        return false;
    const QStringList names = source.entryList(QDir::Files);
    return std::all_of(names.begin(), names.end(),
                       [&](const QString& name) { return QFile::copy(source.filePath(name), to + u'/' + name); });
}

bool writeScript(const QString& path, const QList<Step>& steps) {
    QFile script(path);
    if (!script.open(QIODevice::WriteOnly))
        return false;
    for (const Step& step : steps)
        script.write(step.command + '\n');
    return true;
}

QString faultOf(const QProcess& process) {
    if (process.state() != QProcess::NotRunning)
        return QStringLiteral("still running after %1 s").arg(longestRun / 1000);
    if (process.exitStatus() != QProcess::NormalExit || process.error() == QProcess::FailedToStart)
        return process.errorString();
    return process.exitCode() == 0 ? QString() : QStringLiteral("exit status %1").arg(process.exitCode());
}

} // namespace

BatchRun runBatch(const QString& program, const Scenario& scenario) {
    BatchRun run;
    const QTemporaryDir scratch;
    const QString home = QFileInfo(scratch.path()).canonicalFilePath();
    const QString directory = home + QStringLiteral("/programma");
    const QString script = home + QStringLiteral("/script.txt");
    const QString files = QFileInfo(scenario.path).dir().filePath(scenario.filesFolder);
    if (!QDir(home).mkpath(directory) || !writeScript(script, scenario.steps) ||
        (!scenario.filesFolder.isEmpty() && !copyFiles(files, directory))) {
        run.fault = QStringLiteral("cannot prepare the program's directory");
        return run;
    }
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), scenario.locale);
    process.setProcessEnvironment(environment);
    process.start(program, {QStringLiteral("--dir"), directory, QStringLiteral("--script"), script});
    process.waitForFinished(longestRun);
    run.fault = faultOf(process);
    process.kill();
    run.diagnostics = process.readAllStandardError();
    QByteArray output = process.readAllStandardOutput();
    output.replace(directory.toUtf8(), "{DIR}");
    run.answers = output.split('\n');
    if (run.answers.last().isEmpty())
        run.answers.removeLast();
    return run;
}

} // namespace scenarios
