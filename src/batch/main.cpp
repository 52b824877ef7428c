// SPDX-License-Identifier: MIT
// vanzer-batch: reads commands, one a line, and writes one line of JSON for each.

#include <cstdio>
#include <optional>

#include <unistd.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QLocale>

#include "batch/command_lines.h"
#include "batch/interpreter.h"
#include "batch/usage.h"
#include "core/disk.h"
#include "startup/startup.h"
#include "toolkit/end_signals.h"

namespace {

using namespace vanzer;

constexpr int badUsage = 2;

void say(const QString& text) {
    std::fputs((text + u'\n').toLocal8Bit().constData(), stderr);
}

/// The arguments of the program.
struct Request {
    QString directory; ///< absolute
    std::optional<QDateTime> now;
    QString script; ///< absolute; empty for standard input
    QString told;   ///< text to print instead of running commands
};

std::optional<Request> requested(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.addOptions(
        {{QStringLiteral("dir"), QStringLiteral("The program's directory."), QStringLiteral("DIR")},
         {QStringLiteral("now"), QStringLiteral("Fixes the clock."), QStringLiteral("YYYY-MM-DDTHH:MM")},
         {QStringLiteral("script"), QStringLiteral("Reads the commands from a file."), QStringLiteral("FILE")},
         {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Prints the commands.")},
         {{QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("Prints the version.")}});
    const bool understood = parser.parse(arguments);
    Request request;
    if (understood && parser.isSet(QStringLiteral("help"))) {
        request.told = batch::helpText();
        return request;
    }
    if (understood && parser.isSet(QStringLiteral("version"))) {
        request.told = QStringLiteral("vanzer-batch ") + versioneProgramma();
        return request;
    }
    if (!understood || !parser.positionalArguments().isEmpty()) {
        say(parser.errorText() + u'\n' + batch::helpText());
        return std::nullopt;
    }
    const QString directory =
        parser.isSet(QStringLiteral("dir")) ? parser.value(QStringLiteral("dir")) : nomeComeTesto(".");
    request.directory = QDir::cleanPath(QDir(directory).absolutePath());
    if (directory.isEmpty()) {
        say(QStringLiteral("no directory"));
        return std::nullopt;
    }
    if (parser.isSet(QStringLiteral("now"))) {
        request.now = batch::clockTime(parser.value(QStringLiteral("now")));
        if (!request.now) {
            say(QStringLiteral("not a time: ") + parser.value(QStringLiteral("now")));
            return std::nullopt;
        }
    }
    if (parser.isSet(QStringLiteral("script")))
        request.script = QDir::current().absoluteFilePath(parser.value(QStringLiteral("script")));
    return request;
}

void write(const QJsonObject& answer) {
    const QByteArray line = QJsonDocument(answer).toJson(QJsonDocument::Compact) + '\n';
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stdout);
    std::fflush(stdout);
}

void serve(batch::Interpreter& interpreter, batch::CommandLines commands) {
    while (!interpreter.finished() && SegnaliDiFine::arrived() == 0) {
        const auto bytes = commands.next();
        if (!bytes)
            break;
        if (const auto answer = interpreter.run(QString::fromStdString(*bytes)))
            write(*answer);
    }
}

} // namespace

int main(int argc, char** argv) {
    const SegnaliDiFine asked;
    const QCoreApplication application(argc, argv);
    const auto request = requested(argomentiComeTesto(argc, argv));
    if (!request)
        return badUsage;
    if (!request->told.isEmpty()) {
        std::puts(request->told.toLocal8Bit().constData());
        return 0;
    }
    QFile script(request->script);
    if (!request->script.isEmpty() && !script.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        say(QStringLiteral("can't read ") + request->script);
        return badUsage;
    }
    // Relative paths of file dialogs start at the program's directory. If that doesn't exist, the window reports that
    // it can't open its archive.
    static_cast<void>(QDir::setCurrent(request->directory));
    {
        batch::Interpreter interpreter(
            {.directory = request->directory, .decimalMark = QLocale::system().decimalPoint().at(0), .versione = {}});
        if (request->now)
            interpreter.setClock(*request->now);
        const int commands = script.isOpen() ? script.handle() : STDIN_FILENO;
        serve(interpreter, batch::CommandLines(commands, asked.descrittore()));
    }
    if (SegnaliDiFine::arrived() != 0)
        SegnaliDiFine::die(SegnaliDiFine::arrived());
    return 0;
}
