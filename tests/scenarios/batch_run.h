#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include "scenario_file.h"

namespace scenarios {

/// What one run of the program gave.
struct BatchRun {
    QList<QByteArray> answers; ///< one JSON text a line, the program's directory written as "{DIR}"
    QByteArray diagnostics;    ///< standard error
    QString fault;             ///< the program did not start, did not end by itself or not with 0
};

/// Runs the scenario's commands in a fresh program directory that is gone afterwards.
[[nodiscard]] BatchRun runBatch(const QString& program, const Scenario& scenario);

} // namespace scenarios
