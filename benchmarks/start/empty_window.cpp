// A Qt program that shows an empty window: what a start costs at the least. Ends when it has nothing more to do.
#include <QApplication>
#include <QMainWindow>
#include <QTimer>
#include <QWindow>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    window.show();
    while (!window.windowHandle()->isExposed())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QTimer::singleShot(0, &application, [] { QCoreApplication::exit(); });
    return QApplication::exec();
}
