// vanzer-batch as a process of its own, killed while it works.
#pragma once

#include <csignal>
#include <functional>
#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace vanzer::kills {

/// What is asked while the program runs: answers read so far, seconds since the start, seconds since the last answer.
using Moment = std::function<bool(int answers, double elapsed, double sinceAnswer)>;

struct KilledRun {
    int answers = 0;              ///< whole ones that it had given
    bool killed = false;          ///< false if it came to its end before
    std::vector<double> answerAt; ///< s since the start, for each answer
    QByteArray output;
};

/// Gives the program all lines at once and kills it when `moment` says so.
[[nodiscard]] KilledRun runAndKill(const QString& folder, const QStringList& lines, const Moment& moment,
                                   int signal = SIGKILL);

} // namespace vanzer::kills
