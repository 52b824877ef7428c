#include "kills/killed_run.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <string>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>

namespace vanzer::kills {

namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

[[noreturn]] void becomeProgram(const std::string& folder, const std::string& script, int output) {
    dup2(output, STDOUT_FILENO);
    execl(VANZER_BATCH_PROGRAM, VANZER_BATCH_PROGRAM, "--dir", folder.c_str(), "--now", "2026-05-20T09:30", "--script",
          script.c_str(), nullptr);
    _exit(127);
}

} // namespace

KilledRun runAndKill(const QString& folder, const QStringList& lines, const Moment& moment, int signal) {
    const QString script = folder + QStringLiteral(".script");
    QFile file(script);
    if (!file.open(QIODevice::WriteOnly) || file.write(lines.join(u'\n').toUtf8()) < 0)
        return {};
    file.close();
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return {};
    fcntl(ends[1], F_SETFL, 0);
    KilledRun run;
    const auto start = Clock::now();
    const pid_t child = fork();
    if (child == 0)
        becomeProgram(folder.toStdString(), script.toStdString(), ends[1]);
    close(ends[1]);
    char bytes[65536];
    for (bool open = true; open;) {
        pollfd waiting{ends[0], POLLIN, 0};
        const timespec while_{0, run.killed ? 100'000'000 : 50'000};
        ppoll(&waiting, 1, &while_, nullptr);
        for (ssize_t count = 1; open && count > 0;) {
            count = read(ends[0], bytes, sizeof(bytes));
            open = count != 0;
            run.output.append(bytes, std::max<ssize_t>(count, 0));
            for (ssize_t i = 0; i < count; ++i) {
                if (bytes[i] == '\n')
                    run.answerAt.push_back(secondsSince(start));
            }
        }
        const double now = secondsSince(start);
        run.answers = static_cast<int>(run.answerAt.size());
        if (!run.killed && moment(run.answers, now, now - (run.answerAt.empty() ? 0 : run.answerAt.back()))) {
            kill(child, signal);
            run.killed = true;
        }
    }
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    run.killed = WIFSIGNALED(status) && WTERMSIG(status) == signal;
    QFile::remove(script);
    return run;
}

} // namespace vanzer::kills
