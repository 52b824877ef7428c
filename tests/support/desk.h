// SPDX-License-Identifier: MIT
// A program at work in a folder.
#pragma once

#include <gtest/gtest.h>

#include <QJsonArray>

#include "batch/interpreter.h"

namespace vanzer {

using namespace Qt::StringLiterals;

class Desk {
  public:
    explicit Desk(const QString& folder, const QDate& today = QDate(2026, 5, 4))
        : program_({.directory = folder, .decimalMark = u'.', .versione = {}}) {
        program_.setClock(QDateTime(today, QTime(9, 30)));
    }

    /// Runs lines, which must all be valid and enabled. Returns the texts of the boxes that appeared.
    QStringList run(const QStringList& lines) { return boxes(lines, true); }
    /// The same for lines that may be refused.
    QStringList tries(const QStringList& lines) { return boxes(lines, false); }

    [[nodiscard]] bool alive() { return !program().run(u"get cmdEsce"_s)->contains(u"error"_s); }
    [[nodiscard]] batch::Interpreter& program() { return program_; }

  private:
    QStringList boxes(const QStringList& lines, bool allowed) {
        QStringList texts;
        for (const QString& line : lines) {
            const QJsonObject answer = program_.run(line).value_or(QJsonObject());
            EXPECT_FALSE(allowed && (answer.contains(u"refused"_s) || answer.contains(u"error"_s)))
                << line.toStdString();
            for (const QJsonValue& box : answer[u"boxes"_s].toArray())
                texts += box[u"text"].toString();
        }
        return texts;
    }

    batch::Interpreter program_;
};

/// Makes a trip. The editor stays open.
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
