// least_window FOLDER [TEXT]: the least that a start can be. A Qt program reads the current trip of the archive in a
// folder by bare engine calls, shows an empty window, or one with a text, and ends when it has nothing more to do.
#include <cstdlib>

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QTimer>
#include <QWindow>

#include "../bare_archive.h"

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    vanzer::bench::readCurrentTrip(QApplication::arguments().value(1));
    QMainWindow window;
    if (const QString text = QApplication::arguments().value(2); !text.isEmpty())
        window.setCentralWidget(new QLabel(text));
    window.show();
    while (!window.windowHandle()->isExposed())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QTimer::singleShot(0, &application, [] { std::_Exit(0); });
    return QApplication::exec();
}
