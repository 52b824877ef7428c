// What the program is killed at: a folder made ready, and the commands that it is given.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QString>
#include <QStringList>

namespace vanzer::kills {

struct Workload {
    const char* name;
    std::function<void(const QString& folder)> prepare;
    QStringList lines;
    std::vector<int> writing; ///< numbers of the lines, from 0, that write for some time
    bool inSteps = false;     ///< the last line stores more than once
};

[[nodiscard]] const std::vector<Workload>& workloads();

} // namespace vanzer::kills
