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
/// lines and comments may stand anywhere. The header knows three keys:
///   # pending: ROOM     not expected to hold yet: reported as skipped
///   # locale: NAME      the process locale of the program; C.UTF-8 without it
///   # files: FOLDER     beside the scenario; its files are copied into the program's directory first
struct Scenario {
    QString path;
    QString pending;
    QString locale = QStringLiteral("C.UTF-8");
    QString filesFolder;
    QList<Step> steps;
    QString fault; ///< why the file can't be used, empty when it can

    /// The path's last part without ".txt".
    [[nodiscard]] QString name() const;
};

/// Reads a scenario; what is wrong with it stands in `fault`.
[[nodiscard]] Scenario readScenario(const QString& path);

/// Replaces the expected answers in the scenario's file by those of its steps and leaves every other line as it is.
/// Returns false when the file can't be written.
[[nodiscard]] bool rewriteScenario(const Scenario& scenario);

} // namespace scenarios
