// least_batch FOLDER: the least that a start can be. A Qt program without a window reads the current trip of the
// archive in a folder by bare engine calls, and has nothing more to do.
#include <QCoreApplication>
#include <QTimer>

#include "../bare_archive.h"

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    vanzer::bench::readCurrentTrip(QCoreApplication::arguments().value(1));
    QTimer::singleShot(0, &application, [] { QCoreApplication::exit(); });
    return QCoreApplication::exec();
}
