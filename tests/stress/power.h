// The disk as it may look after a loss of power.
#pragma once

#include <random>

#include "stress/system_calls.h"

namespace vanzer::stress {

/// The disk behind the first `cut` changes. All that was synced is there. Of what was written to a file since its last
/// sync a part is there, drawn by chance, torn at sectors; of names made, changed and taken away since their folder's
/// last sync the first few are. `ignoreSyncs` is a disk that lies: it has synced nothing.
[[nodiscard]] Disk afterPowerCut(const Recording& recording, std::size_t cut, std::mt19937_64& chance,
                                 bool ignoreSyncs = false);
/// Nothing is lost.
[[nodiscard]] Disk afterAll(const Recording& recording, std::size_t cut);

} // namespace vanzer::stress
