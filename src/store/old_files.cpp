// SPDX-License-Identifier: MIT
#include "store/old_files.h"

#include <algorithm>

#include <QDir>

namespace vanzer::store {

namespace {

bool isAlphanumeric(QChar c) {
    return c.unicode() < 0x80 && c.isLetterOrNumber();
}

} // namespace

QString fileVecchieTappe(const QString& code) {
    const QString end = code.right(4);
    const QString name = QStringLiteral("vanz") + end + QStringLiteral(".dat");
    const bool usable = !end.isEmpty() && std::ranges::all_of(end, isAlphanumeric);
    const auto same = [&name](QStringView other) { return name.compare(other, Qt::CaseInsensitive) == 0; };
    return usable && !same(fileVecchieMete) && !same(fileVecchiaGuida) ? name : QString();
}

QString oldFileIn(const QString& directory, QStringView name) {
    const QDir dir(directory);
    if (name.isEmpty() || dir.exists(name.toString()))
        return name.isEmpty() ? QString() : dir.filePath(name.toString());
    const QStringList found = dir.entryList({name.toString()}, QDir::Files | QDir::Hidden);
    return found.isEmpty() ? QString() : dir.filePath(found.front());
}

bool vecchiFileInAttesa(const QString& directory, const std::function<QStringList()>& codes) {
    QStringList there = QDir(directory).entryList({QStringLiteral("vanz*.dat")}, QDir::Files | QDir::Hidden);
    for (QString& name : there)
        name = name.toLower();
    const auto waits = [&there](QStringView name) { return there.contains(name.toString().toLower()); };
    return !there.isEmpty() &&
           (waits(fileVecchieMete) || waits(fileVecchiaGuida) ||
            std::ranges::any_of(codes(), [&](const QString& c) { return waits(fileVecchieTappe(c)); }));
}

} // namespace vanzer::store
