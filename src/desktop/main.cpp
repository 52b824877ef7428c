// SPDX-License-Identifier: MIT
// vanzer: the window on a desktop.

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QSocketNotifier>
#include <QTranslator>

#include "core/disk.h"
#include "desktop/program.h"
#include "desktop/program_directory.h"
#include "desktop/settings_file.h"
#include "startup/startup.h"
#include "toolkit/end_signals.h"

namespace {

using namespace vanzer;

constexpr int failed = 1;

/// The arguments of the program.
struct Request {
    QString directory; ///< directory of the archive
    QString trips;     ///< a file to import from; empty for none
};

Request requested(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Viaggi in camper, giorno per giorno"));
    parser.addHelpOption();
    parser.addOption({QStringLiteral("dir"), QStringLiteral("La cartella dell'archivio."), QStringLiteral("CARTELLA")});
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("Un file .iei: ne offre i viaggi."),
                                 QStringLiteral("[FILE]"));
    parser.process(arguments);
    Request request;
    request.directory = parser.isSet(QStringLiteral("dir")) ? QDir(parser.value(QStringLiteral("dir"))).absolutePath()
                                                            : desktop::programDirectory();
    if (const QStringList files = parser.positionalArguments(); !files.isEmpty())
        request.trips = QDir::current().absoluteFilePath(files.front());
    return request;
}

void nameApplication() {
    QApplication::setApplicationName(QStringLiteral("Vanzer"));
    QApplication::setOrganizationName(QStringLiteral("Vanzer"));
    QApplication::setDesktopFileName(QStringLiteral("vanzer"));
    QApplication::setApplicationVersion(versioneProgramma());
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/vanzer.png")));
}

int run(int argc, char** argv, const SegnaliDiFine& asked) {
    const QApplication application(argc, argv);
    nameApplication();
    QTranslator italian;
    if (italian.load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&italian);

    const Request request = requested(argomentiComeTesto(argc, argv));
    if (const QString warning = desktop::skipUnreadableSettings(); !warning.isEmpty())
        QMessageBox::warning(nullptr, QApplication::applicationName(), warning);
    // Relative paths start at the archive's directory. If that doesn't exist, the window reports it.
    static_cast<void>(QDir::setCurrent(request.directory));
    desktop::SystemClock clock;
    desktop::Program program(
        {.directory = request.directory, .decimalMark = QLocale::system().decimalPoint().at(0), .versione = {}}, clock);
    QSocketNotifier ends(asked.descrittore(), QSocketNotifier::Read);
    QObject::connect(&ends, &QSocketNotifier::activated, [&] {
        ends.setEnabled(false);
        program.end();
    });
    if (!program.start())
        return failed;
    if (!request.trips.isEmpty())
        program.openTrips(request.trips);
    return program.form().chiusa ? failed : QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    const SegnaliDiFine asked;
    const int result = run(argc, argv, asked);
    if (SegnaliDiFine::arrived() != 0)
        SegnaliDiFine::die(SegnaliDiFine::arrived());
    return result;
}
