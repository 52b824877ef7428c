// The window before a user, on an archive in a folder of its own.
#pragma once

#include <QTemporaryDir>

#include "support/desk.h"

namespace vanzer {

class WindowTest : public testing::Test {
  protected:
    /// Another program, on an empty archive.
    void startAnew() {
        desk.reset();
        folder.emplace();
        start();
    }
    /// The program on the archive of the one before. Returns what the boxes told.
    QStringList start() {
        desk.emplace(folder->path());
        desk->program().setClock(now);
        const QStringList told = does(u"start"_s);
        form().interattiva = true;
        return told;
    }
    /// Two legs, NAME 0 and NAME 1.
    void storeTrip(const QString& name) { desk->run(storedTrip(name, 2)); }

    /// Carries out commands of vanzer-batch, parted by "; ". Returns the texts of the boxes.
    QStringList does(const QString& commands) { return desk->run(commands.split(u"; "_s, Qt::SkipEmptyParts)); }
    /// The same of the boxes that came up outside a command.
    QStringList asked() {
        QStringList texts;
        for (const QJsonValue box : static_cast<batch::QueuedBoxes&>(form().ports.messages).exchange({}))
            texts << box[u"text"].toString();
        return texts;
    }
    Form& form() { return *desk->program().window(); }
    /// Comes in at the first yield of a command that suits it.
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
