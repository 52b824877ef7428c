// The window before a user, on an archive in a folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QTemporaryDir>

#include "batch/session.h"

namespace vanzer {

using namespace Qt::StringLiterals;

class WindowTest : public testing::Test {
  protected:
    /// Another program, on an empty archive.
    void startAnew() {
        session.reset();
        folder.emplace();
        start();
    }
    /// The program on the archive of the one before.
    void start() {
        session.emplace(Ambiente{.directory = folder->path(), .decimalMark = u'.', .versione = {}});
        session->clock.set(now);
        session->start();
        form().interattiva = true;
        asked();
    }
    /// Two legs.
    void storeTrip(const QString& name) {
        form().cmdNuovo.click();
        form().txtLocalita.type(name);
        form().txtNazione.type(u"ITALIA"_s);
        answer({rispostaSi, rispostaSi});
        form().cmdSalva.click();
        form().cmdItinerario.click();
        for (const QString& place : {u"ASTI"_s, u"ALBA"_s})
            addLeg(form(), place);
        form().cmdFine.click();
        asked();
    }
    static void addLeg(Form& f, const QString& place) {
        f.mfgTab.clickRow(f.stato.NumeroTappe + 1);
        f.txtTappa.type(place);
        f.txtKm.type(u"30"_s);
        f.cmdInserisce.click();
    }

    Form& form() { return *session->window(); }
    void answer(const std::vector<int>& answers) {
        for (const int one : answers)
            session->boxes.enqueue(one);
    }
    /// The texts of the boxes since the last call.
    QStringList asked() {
        QStringList texts;
        for (const QJsonValue box : session->boxes.exchange({}))
            texts << box[u"text"].toString();
        return texts;
    }
    /// One field of all records of a table, joined.
    QString stored(const QString& table, const QString& field) {
        const QJsonObject read = session->table(table);
        const qsizetype at = read[u"fields"].toArray().toVariantList().indexOf(field);
        QStringList texts;
        for (const QJsonValue record : read[u"records"].toArray())
            texts << record[at].toString().trimmed();
        return texts.join(u'|');
    }
    [[nodiscard]] QString inFolder(const QString& name) const { return folder->filePath(name); }

    const QDateTime now{QDate(2026, 11, 24), QTime(18, 5, 7)};
    std::optional<QTemporaryDir> folder;
    std::optional<batch::Session> session;
};

} // namespace vanzer
