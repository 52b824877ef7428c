// vanzer: the window on a desktop.

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "desktop/program.h"
#include "desktop/program_directory.h"
#include "window/startup.h"

namespace {

using namespace vanzer;

QString requestedDirectory(const QCoreApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Viaggi in camper, giorno per giorno"));
    parser.addHelpOption();
    parser.addOption({QStringLiteral("dir"), QStringLiteral("La cartella dell'archivio."), QStringLiteral("CARTELLA")});
    parser.process(application);
    return parser.isSet(QStringLiteral("dir")) ? QDir(parser.value(QStringLiteral("dir"))).absolutePath()
                                               : desktop::programDirectory();
}

void nameApplication() {
    QApplication::setApplicationName(QStringLiteral("Vanzer"));
    QApplication::setOrganizationName(QStringLiteral("Vanzer"));
    QApplication::setDesktopFileName(QStringLiteral("vanzer"));
    QApplication::setApplicationVersion(versioneProgramma());
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/vanzer.png")));
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    nameApplication();
    QTranslator italian;
    if (italian.load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&italian);

    const QString directory = requestedDirectory(application);
    // Relative paths are taken from the archive's directory. One that isn't there is told by the window.
    static_cast<void>(QDir::setCurrent(directory));
    desktop::SystemClock clock;
    desktop::Program program(
        {.directory = directory, .decimalMark = QLocale::system().decimalPoint().at(0), .versione = {}}, clock);
    return program.start() ? QApplication::exec() : 1;
}
