// The few lines of a script that break the program.
#pragma once

#include <optional>

#include "hostile/script.h"

namespace vanzer::hostile {

/// Every run is a process of its own. Nothing if the script doesn't break the program.
[[nodiscard]] std::optional<QStringList> shrunk(const Script& script, const Folders& folders, ScriptFile& file);

} // namespace vanzer::hostile
