// A reader under fire: a function that takes any bytes and must neither crash nor hang nor break its promises.
#pragma once

#include <span>

#include <QByteArray>
#include <QString>

namespace vanzer::fuzz {

struct Target {
    const char* name;
    void (*run)(const QByteArray& input);
};

/// All targets; a new one gets its line in targets.cpp and its corpus in a folder of its name.
[[nodiscard]] std::span<const Target> targets();

/// Ends the program with what was promised, if it isn't so.
void promise(bool kept, const QString& what);

} // namespace vanzer::fuzz
