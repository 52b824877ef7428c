// SPDX-License-Identifier: MIT
// The window with a user present, on an archive in its own folder.
#pragma once

#include <QTemporaryDir>

#include "support/desk.h"

namespace vanzer {

class WindowTest : public testing::Test {
  protected:
    /// Starts another program on an empty archive.
    void startAnew() {
        desk.reset();
        folder.emplace();
        start();
    }
    /// Starts another program on the archive of the last one. Returns the texts of the boxes.
    QStringList start() {
        desk.emplace(folder->path());
        desk->program().setClock(now);
        const QStringList told = does(u"start"_s);
        form().interattiva = true;
        return told;
    }
    /// Stores a trip with two legs, NAME 0 and NAME 1.
    void storeTrip(const QString& name) { desk->run(storedTrip(name, 2)); }

    /// Runs commands of vanzer-batch, separated by "; ". Returns the texts of the boxes.
    QStringList does(const QString& commands) { return desk->run(commands.split(u"; "_s, Qt::SkipEmptyParts)); }
    /// The texts of boxes that appeared outside a command.
    QStringList asked() {
        QStringList texts;
        for (const QJsonValue box : static_cast<batch::QueuedBoxes&>(form().ports.messages).exchange({}))
            texts << box[u"text"].toString();
        return texts;
    }
    Form& form() { return *desk->program().window(); }
    /// Calls `visitor` at the first yield of a command that suits it.
    void atAYield(batch::VisitedYield::Visitor visitor) {
        static_cast<batch::VisitedYield&>(form().ports.events).expect(std::move(visitor));
    }
    /// One field of all records of a table, joined.
    QString stored(const QString& table, const QString& field) {
        const QJsonObject read = *desk->program().run(u"table "_s + table);
        const qsizetype at = read[u"fields"].toArray().toVariantList().indexOf(field);
        QStringList texts;
        for (const QJsonValue record : read[u"records"].toArray())
            texts << record[at].toString().trimmed();
        return texts.join(u'|');
    }
    [[nodiscard]] QString inFolder(const QString& name) const { return folder->filePath(name); }

    const QDateTime now{QDate(2026, 11, 24), QTime(18, 5, 7)};
    std::optional<QTemporaryDir> folder;
    std::optional<Desk> desk;
};

} // namespace vanzer
