// SPDX-License-Identifier: MIT
#include "desktop/program_directory.h"

#include <filesystem>
#include <system_error>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "core/disk.h"

namespace vanzer::desktop {

QString programDirectory() {
    QString own = QCoreApplication::applicationDirPath();
#ifdef Q_OS_LINUX
    if (!QFileInfo::exists(own)) { // its name isn't valid text
        std::error_code error;
        own = nomeComeTesto(std::filesystem::read_symlink("/proc/self/exe", error).parent_path().c_str());
    }
#endif
    if (QFileInfo(own).isWritable())
        return own;
    QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(data);
    return data;
}

} // namespace vanzer::desktop
