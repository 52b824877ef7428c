#include "desktop/program_directory.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace vanzer::desktop {

QString programDirectory() {
    QString own = QCoreApplication::applicationDirPath();
    if (QFileInfo(own).isWritable())
        return own;
    QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(data);
    return data;
}

} // namespace vanzer::desktop
