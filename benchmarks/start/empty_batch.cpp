// A Qt program that does nothing: what a start costs at the least.
#include <QCoreApplication>
#include <QTimer>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QTimer::singleShot(0, &application, [] { QCoreApplication::exit(); });
    return QCoreApplication::exec();
}
