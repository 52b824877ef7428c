// A program at work in a folder, and what is done there.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QStringList>

#include "batch/interpreter.h"
#include "store/archive.h"

namespace vanzer::stress {

using namespace Qt::StringLiterals;

/// Lines of a section of a file beside this one.
[[nodiscard]] QStringList section(const char* file, const QString& name);
/// What stands behind "KEY: " there; empty if nothing does.
[[nodiscard]] QString entry(const QStringList& section, const QString& key);
/// Lines to give, of a script as scripts.txt explains it. "{}" in them is the folder.
[[nodiscard]] QStringList script(const QString& text, const QString& folder = {});
/// Makes a folder ready, by such lines too.
void prepare(const QString& folder, const QStringList& lines);

[[nodiscard]] std::string text(const QStringList& lines);
/// Boxes on a failure that don't say what was kept or not done.
[[nodiscard]] std::string unclearWords(QStringList boxes);

class Desk {
  public:
    explicit Desk(const QString& folder, const QDate& today = QDate(2026, 5, 4))
        : program({.directory = folder, .decimalMark = u'.', .versione = {}}) {
        program.setClock(QDateTime(today, QTime(9, 30)));
    }

    /// The texts of the boxes that came up. Each line is understood and allowed.
    QStringList run(const QStringList& lines) { return boxes(lines, true); }
    /// The same of lines that may not be allowed, as for a hand that tries everything.
    QStringList tries(const QStringList& lines) { return boxes(lines, false); }

    [[nodiscard]] bool alive() { return !program.run(u"get cmdEsce"_s)->contains(u"error"_s); }

    /// Lets go of the archive.
    void leave() { static_cast<void>(program.run(u"stop"_s)); }

    /// All records of all tables, a line each, without the guide's marks of use, which are made anew at each load. A
    /// program that was never started reads them from the file.
    [[nodiscard]] QStringList records();

    batch::Interpreter program;

  private:
    QStringList boxes(const QStringList& lines, bool allowed);
};

} // namespace vanzer::stress
