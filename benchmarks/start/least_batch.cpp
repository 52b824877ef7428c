// SPDX-License-Identifier: MIT
// least_batch FOLDER: the fastest possible start. A Qt program without a window reads the current trip of the folder's
// archive by plain engine calls, and ends.
#include <QCoreApplication>
#include <QTimer>

#include "../bare_archive.h"

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    vanzer::bench::readCurrentTrip(QCoreApplication::arguments().value(1));
    QTimer::singleShot(0, &application, [] { QCoreApplication::exit(); });
    return QCoreApplication::exec();
}
