// What the batch program tells of itself.
#pragma once

#include <span>

#include <QString>

namespace vanzer::batch {

struct Usage {
    QStringView command; ///< the word and what stands behind it
    QStringView does;
};
/// All commands, in the order of their description.
[[nodiscard]] std::span<const Usage> commandUsage();

/// What `--help` prints: arguments, commands, an example.
[[nodiscard]] QString helpText();

} // namespace vanzer::batch
