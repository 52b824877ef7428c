#include <QApplication>
#include <QDir>
#include <QFile>
#include <QScreen>
#include <QSettings>
#include <QTemporaryDir>

#include "desktop/desktop_ports.h"
#include "desktop/program.h"
#include "desktop/settings_file.h"
#include "fuzz_target.h"

namespace vanzer::fuzz {

namespace {

using namespace Qt::StringLiterals;

/// A window that nobody sees, the same for all inputs. It lasts to the end.
desktop::Program& program() {
    static const QTemporaryDir folder;
    static desktop::Program* const made = [] {
        static int count = 1;
        static char name[] = "vanzer";
        static char* arguments[] = {name, nullptr};
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static const auto* const application = new QApplication(count, arguments);
        QApplication::setApplicationName(u"Vanzer"_s);
        QApplication::setOrganizationName(u"Vanzer"_s);
        static desktop::SystemClock clock;
        static_cast<void>(application);
        auto* const window =
            new desktop::Program({.directory = folder.path(), .decimalMark = u'.', .versione = {}}, clock);
        window->form().chiusa = true; // nobody is asked when it is closed
        return window;
    }();
    return *made;
}

} // namespace

void readSettings(const QByteArray& input) {
    desktop::MainWindow& window = program().window();
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Vanzer/Vanzer.conf"_s);
    QFile file(path);
    promise(QDir(folder.path()).mkdir(u"Vanzer"_s) && file.open(QIODevice::WriteOnly) &&
                file.write(input) == input.size(),
            "the settings can be written");
    file.close();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    promise(desktop::impostazioniIllegibili(folder.path()).isEmpty(), "a plain file is read");
    for (int times = 0; times < 2; ++times) { // those of the input, then what the window stored
        window.restorePlace();
        const QRect room = window.screen()->availableGeometry();
        promise(window.size() == window.size().boundedTo(room.size()), "the window is no larger than the screen");
        promise(window.geometry().intersects(room), "the window is on the screen");
        window.close();
    }
}

} // namespace vanzer::fuzz

/// What a library keeps to the end is its own.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig";
}

extern "C" const char* __lsan_default_options() {
    return "print_suppressions=0";
}
