#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace scenarios {

/// A command line and what it is expected to answer.
struct Step {
    QByteArray command;
    QByteArray expected; ///< JSON text; empty where the file gives none
    int line = 0;        ///< of the command, from 1
};

/// A scenario: header comments, then command lines, each followed by a line "=> JSON" with its expected answer. Empty
/// lines and comments may stand anywhere. The header knows two keys:
///   # locale: NAME      the process locale of the program; C.UTF-8 without it
///   # files: FOLDER     beside the scenario; its files are copied into the program's directory first
///
/// The examples of a Markdown page are a scenario too: its fenced blocks named "vanzer-batch" and comments that begin
/// so, one session in the order of the page. A command may be followed by "=> JSON", whose keys the answer must have
/// so, or by "=> ~ TEXT", which the answer must contain; without either it must be neither an error nor refused.
struct Scenario {
    QString path;
    bool examples = false; ///< of a page for readers
    QString locale = QStringLiteral("C.UTF-8");
    QString filesFolder;
    QList<Step> steps;
    QString fault; ///< why the file can't be used, empty when it can
};

/// Reads a scenario, of a page where the path ends in ".md"; what is wrong with it stands in `fault`.
[[nodiscard]] Scenario readScenario(const QString& path);

/// Replaces the expected answers in the scenario's file by those of its steps and leaves every other line as it is.
/// Returns false when the file can't be written.
[[nodiscard]] bool rewriteScenario(const Scenario& scenario);

} // namespace scenarios
