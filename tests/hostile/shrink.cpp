#include "hostile/shrink.h"

#include <cstdio>

#include <sys/wait.h>
#include <unistd.h>

namespace vanzer::hostile {

namespace {

bool breaks(const Script& script, const Folders& folders, ScriptFile& file) {
    std::fflush(stdout);
    const pid_t child = fork();
    if (child == 0) {
        static_cast<void>(std::freopen("/dev/null", "w", stderr));
        Totals totals;
        _exit(run(script, folders, file, totals).isEmpty() ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return status != 0;
}

QStringList written(const ScriptFile& file) {
    QFile lines(file.path());
    static_cast<void>(lines.open(QIODevice::ReadOnly));
    return QString::fromUtf8(lines.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

std::optional<QStringList> shrunk(const Script& script, const Folders& folders, ScriptFile& file) {
    if (!breaks(script, folders, file))
        return std::nullopt;
    QStringList needed = written(file);
    for (qsizetype part = needed.size(); part > 0; part /= 2) {
        for (qsizetype at = 0; at < needed.size();) {
            QStringList fewer = needed;
            fewer.remove(at, std::min(part, fewer.size() - at));
            if (breaks({script.number, script.folder, script.typesMarks, linesOf(fewer)}, folders, file))
                needed = fewer;
            else
                at += part;
        }
    }
    return needed;
}

} // namespace vanzer::hostile
