// A program at work in a folder, for tests that look at what is stored there.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>

#include "batch/interpreter.h"
#include "store/archive.h"

namespace vanzer {

using namespace Qt::StringLiterals;

inline void copyFolder(const QString& from, const QString& to) {
    QDir().mkpath(to);
    for (const QFileInfo& entry : QDir(from).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString target = QDir(to).filePath(entry.fileName());
        entry.isDir() ? copyFolder(entry.filePath(), target) : void(QFile::copy(entry.filePath(), target));
    }
}

inline std::string filesIn(const QString& folder) {
    return QDir(folder).entryList(QDir::Files).join(u' ').toStdString();
}

/// A program at work in a folder.
class Desk {
  public:
    explicit Desk(const QString& folder, const QDate& today = QDate(2026, 5, 4))
        : program_({.directory = folder, .decimalMark = u'.', .versione = {}}) {
        program_.setClock(QDateTime(today, QTime(9, 30)));
    }

    /// The texts of the boxes that came up. Each line is understood and allowed.
    QStringList run(const QStringList& lines) {
        QStringList texts;
        for (const QString& line : lines) {
            const auto answer = program_.run(line);
            for (const QString& trouble : {u"refused"_s, u"error"_s})
                EXPECT_FALSE(answer->contains(trouble)) << line.toStdString();
            for (const QJsonValue& box : answer->value(u"boxes"_s).toArray())
                texts += box[u"text"].toString();
        }
        return texts;
    }

    /// The same of lines that may not be allowed, as for a hand that tries everything.
    QStringList tries(const QStringList& lines) {
        QStringList texts;
        for (const QString& line : lines) {
            for (const QJsonValue& box : program_.run(line)->value(u"boxes"_s).toArray())
                texts += box[u"text"].toString();
        }
        return texts;
    }

    [[nodiscard]] batch::Interpreter& program() { return program_; }
    [[nodiscard]] bool alive() { return !program_.run(u"get cmdEsce"_s)->contains(u"error"_s); }

    /// Lets go of the archive.
    void leave() { static_cast<void>(program_.run(u"stop"_s)); }

    /// All records of all tables, a line each. A program that was never started reads them from the file.
    [[nodiscard]] std::string records() {
        QString all;
        for (int table = store::primaTabella; table <= store::ultimaTabella; ++table) {
            const auto answer = program_.run(u"table "_s + store::TabelleNomi(table));
            for (const QJsonValue& record : answer->value(u"records"_s).toArray()) {
                all += store::TabelleNomi(table);
                for (const QJsonValue& field : record.toArray())
                    all += u'|' + field.toVariant().toString();
                all += u'\n';
            }
        }
        return all.toStdString();
    }

  private:
    batch::Interpreter program_;
};

inline bool contains(const std::string& text, const char* part) {
    return text.find(part) != std::string::npos;
}

inline std::string storedIn(const QString& folder) {
    return Desk(folder).records();
}

/// Makes an archive one of another version.
inline void changeSchema(const QString& folder, const QByteArray& sql) {
    store::Database::open(folder + u'/' + store::nomeArchivio)->changeSchema(sql);
}

/// The editor stays open.
inline QStringList newTrip(const QString& name, int legs) {
    QStringList lines{u"click cmdNuovo"_s, u"set txtLocalita "_s + name, u"set txtNazione ITALIA"_s,
                      u"answer 6"_s,       u"click cmdSalva"_s,          u"click cmdItinerario"_s};
    for (int leg = 0; leg < legs; ++leg) {
        lines += {u"set txtTappa "_s + name + u' ' + QString::number(leg), u"set txtKm 40"_s, u"option optStrada(0)"_s,
                  u"click cmdInserisce"_s};
    }
    return lines;
}

inline QStringList storedTrip(const QString& name, int legs) {
    return newTrip(name, legs) + QStringList{u"answer 6"_s, u"click cmdFine"_s};
}

} // namespace vanzer
