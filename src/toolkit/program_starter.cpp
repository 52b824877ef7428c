// SPDX-License-Identifier: MIT
#include "toolkit/program_starter.h"

#include <QProcess>

namespace vanzer {

bool DetachedStarter::start(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

} // namespace vanzer
