// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace scenarios {

/// A command line and its expected answer.
struct Step {
    QByteArray command;
    QByteArray expected; ///< JSON text; empty if the file expects none
    int line = 0;        ///< line of the command, from 1
};

/// A scenario: header comments, then command lines, each followed by a line "=> JSON" with the expected answer. Empty
/// lines and comments may stand anywhere. The header knows two keys:
///   # locale: NAME      the process locale of the program; C.UTF-8 without it
///   # files: FOLDER     beside the scenario; its files are copied into the program's directory first
///
/// The examples of a Markdown page are a scenario too. They are the page's fenced blocks named "vanzer-batch", and the
/// comments that begin with that name. They form one session, in the order of the page. A command may be followed by
/// "=> JSON", whose keys the answer must have, or by "=> ~ TEXT", which the answer must contain. Otherwise the answer
/// must be neither an error nor a refusal.
struct Scenario {
    QString path;
    bool examples = false; ///< the commands are examples of a page
    QString locale = QStringLiteral("C.UTF-8");
    QString filesFolder;
    QList<Step> steps;
    QString fault; ///< why the file can't be used; empty if it can
};

/// Reads a scenario, or the examples of a page if the path ends in ".md". Problems are reported in `fault`.
[[nodiscard]] Scenario readScenario(const QString& path);

/// Replaces the expected answers in the scenario's file by those of its steps. Other lines don't change. Returns false
/// if the file can't be written.
[[nodiscard]] bool rewriteScenario(const Scenario& scenario);

} // namespace scenarios
