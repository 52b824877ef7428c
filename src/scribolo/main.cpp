// SPDX-License-Identifier: MIT
// Scribolo: the blank pages of a trip's logbook, as a PDF.

#include <algorithm>
#include <cstdio>
#include <optional>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#include "core/disk.h"
#include "core/text_file.h"
#include "scribolo/pdf.h"

namespace {

using namespace vanzer::scribolo;
using namespace Qt::StringLiterals;

constexpr int noLogbook = 1;
constexpr int badUsage = 2;

void say(FILE* where, const QString& text) {
    std::fputs((text + u'\n').toLocal8Bit().constData(), where);
}

bool hasDisplay() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

/// Opens the file in the desktop's PDF viewer; false if that can't be started.
bool show(const QString& path) {
    return QProcess::startDetached(u"xdg-open"_s, {QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded())});
}

/// The arguments of the program.
struct Request {
    QString directory; ///< absolute
    QString word;      ///< the trip's word; empty if it is in the command file
};

/// Parses the arguments. Everything after the first word belongs to the trip, as a name may contain " -".
std::optional<Request> requested(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Prepara il diario di bordo di un viaggio, da stampare e compilare a mano."_s);
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    const QCommandLineOption help({u"h"_s, u"help"_s}, u"Mostra questo aiuto."_s);
    parser.addOption(help);
    const QCommandLineOption dir(u"dir"_s, u"La cartella di CommandLine.txt e del PDF."_s, u"CARTELLA"_s);
    parser.addOption(dir);
    parser.addPositionalArgument(u"viaggio"_s, u"Senza viaggio vale la riga di CommandLine.txt."_s,
                                 u"[NOME,gg/mm/aaaa,gg/mm/aaaa]"_s);
    if (!parser.parse(arguments) || (parser.isSet(dir) && parser.value(dir).isEmpty())) {
        say(stderr, parser.errorText() + u'\n' + parser.helpText());
        return std::nullopt;
    }
    if (parser.isSet(help))
        parser.showHelp();
    const QString directory = parser.isSet(dir) ? parser.value(dir) : vanzer::nomeComeTesto(".");
    return Request{QDir::cleanPath(QDir(directory).absolutePath()), parser.positionalArguments().join(u' ')};
}

QString wordOfFile(const QString& directory) {
    constexpr qsizetype enough = 65536; // bytes of one line
    const QString path = QDir(directory).filePath(u"CommandLine.txt"_s);
    const vanzer::FileLetto file = vanzer::readFile(path);
    const QString reason = QFileInfo::exists(path) ? file.errore : u"non c'è."_s;
    if (!reason.isEmpty())
        throw Problem(u"Il file %1 non può essere letto: %2"_s.arg(QDir::toNativeSeparators(path), reason));
    return wordOfCommand(file.contenuto.first(std::min(file.contenuto.size(), enough)));
}

} // namespace

int main(int argc, char** argv) {
    const QStringList arguments = vanzer::argomentiComeTesto(argc, argv);
    const QCoreApplication application(argc, argv);

    const auto request = requested(arguments);
    if (!request)
        return badUsage;
    try {
        const Trip trip = tripOf(request->word.isEmpty() ? wordOfFile(request->directory) : request->word);
        const QString path = writePdf(trip, request->directory);
        say(stdout, QDir::toNativeSeparators(path));
        if (hasDisplay() && !show(path))
            say(stderr, u"Nessun programma apre il PDF."_s);
    } catch (const Problem& problem) {
        say(stderr, QString::fromUtf8(problem.what()));
        return noLogbook;
    }
    return 0;
}
