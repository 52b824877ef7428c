// What is attacked: a folder made ready, and the commands given in it.
#pragma once

#include <functional>
#include <iosfwd>
#include <vector>

#include <QDate>
#include <QString>
#include <QStringList>

namespace vanzer::stress {

/// In lines, "{}" stands for the program's folder.
struct Work {
    const char* name;
    std::function<void(const QString& folder)> prepare; ///< files, and what was stored on earlier days
    QStringList before;                                 ///< with all in order; nothing if the start itself is attacked
    QStringList risky;
    QStringList again;     ///< what a user does after a failure, to come to the same end
    QStringList resume;    ///< what he does where the program was started anew, if nothing of the command is stored
    QStringList outputs{}; ///< files for others, which are there before
    bool inSteps = false;  ///< stores more than once
    bool canBeMadeAnew = false; ///< all that it stores
    QDate today{2026, 5, 4};

    /// The start is several commands: what came first may be stored when what comes behind fails.
    [[nodiscard]] bool atStart() const { return before.isEmpty(); }
    [[nodiscard]] QStringList starts() const { return atStart() ? risky : QStringList{QStringLiteral("start")}; }
};

void PrintTo(const Work& work, std::ostream* out);

/// What the seed varies is how much there is of everything.
[[nodiscard]] std::vector<Work> works();
/// An archive with a few trips and a guide.
void travelled(const QString& folder);

} // namespace vanzer::stress
