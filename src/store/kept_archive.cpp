// SPDX-License-Identifier: MIT
#include "store/kept_archive.h"

#include <optional>

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include "store/daily_copy.h"

namespace vanzer::store {

namespace {

QString nameOf(const QString& which, int starts) {
    return QStringLiteral("Vanzer prima della ricostruzione%1 (ancora %2 avvii).mdb").arg(which).arg(starts);
}

struct Kept {
    QString which; ///< "", or " 2", " 3" … for further archives of the same name
    int starts;
};

std::optional<Kept> keptOf(const QString& name) {
    static const QRegularExpression form(
        QStringLiteral("^Vanzer prima della ricostruzione( \\d+)? \\(ancora (\\d\\d?) avvii\\)\\.mdb$"));
    const auto match = form.match(name);
    return match.hasMatch() ? std::optional(Kept{match.captured(1), match.captured(2).toInt()}) : std::nullopt;
}

QStringList keptIn(const QDir& folder) {
    return folder.entryList({QStringLiteral("Vanzer prima della ricostruzione*.mdb")}, QDir::Files);
}

} // namespace

QString keepAside(Database& archive) {
    const QDir folder(cartellaCopie(archive.percorso()));
    QStringList taken;
    for (const QString& name : keptIn(folder)) {
        if (const auto kept = keptOf(name))
            taken += kept->which;
    }
    QString which;
    for (int n = 2; taken.contains(which); ++n)
        which = u' ' + QString::number(n);
    const QString name = nameOf(which, avviiTenuti);
    static_cast<void>(makeWholeCopy(archive, name, {}));
    return folder.filePath(name);
}

void countStart(const QString& archivePath) {
    const QDir folder(cartellaCopie(archivePath));
    for (const QString& name : keptIn(folder)) {
        const auto kept = keptOf(name);
        if (!kept)
            continue;
        if (kept->starts <= 1)
            QFile::remove(folder.filePath(name));
        else
            QFile::rename(folder.filePath(name), folder.filePath(nameOf(kept->which, kept->starts - 1)));
    }
}

} // namespace vanzer::store
