// SPDX-License-Identifier: MIT
// vanzer_in_window FOLDER: starts the program on the folder's archive. Ends when its window is shown and it is idle.
#include <cstdlib>

#include <QApplication>
#include <QTimer>
#include <QWindow>

#include "desktop/program.h"

int main(int argc, char** argv) {
    using namespace vanzer;
    const QApplication application(argc, argv);
    desktop::SystemClock clock;
    desktop::Program program(
        {.directory = QApplication::arguments().value(1), .decimalMark = u'.', .versione = QStringLiteral("bench")},
        clock);
    if (!program.start())
        return 1;
    while (!program.window().windowHandle()->isExposed())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QTimer::singleShot(0, &application, [] { std::_Exit(0); });
    return QApplication::exec();
}
