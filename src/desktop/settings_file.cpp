// SPDX-License-Identifier: MIT
#include "desktop/settings_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include "core/disk.h"
#include "core/text_file.h"

namespace vanzer::desktop {

QString impostazioniIllegibili(const QString& folder) {
    const QString company = QCoreApplication::organizationName();
    const QString ending = QStringLiteral(".conf");
    for (const QString& name : {company + u'/' + QCoreApplication::applicationName() + ending, company + ending}) {
        const QFileInfo file(QDir(folder).filePath(name));
        if (file.exists() && !file.isDir() && (!fileNormale(file.filePath()) || file.size() > fileMassimo))
            return file.filePath();
    }
    return {};
}

QString skipUnreadableSettings() {
    const QString file =
        impostazioniIllegibili(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    if (file.isEmpty())
        return {};
    // A file instead of a folder: no settings are found and none are stored.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, file);
    return QStringLiteral(
               "Le impostazioni non si possono leggere: %1 non è un file normale. Vanzer parte senza, e non ne "
               "memorizza di nuove.")
        .arg(QDir::toNativeSeparators(file));
}

} // namespace vanzer::desktop
