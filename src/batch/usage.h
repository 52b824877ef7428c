// SPDX-License-Identifier: MIT
// The help texts of the batch program.
#pragma once

#include <span>

#include <QString>

namespace vanzer::batch {

struct Usage {
    QStringView command; ///< the word and its arguments
    QStringView does;
};
/// All commands, in the order in which the help lists them.
[[nodiscard]] std::span<const Usage> commandUsage();

/// The text of `--help`: arguments, commands, an example.
[[nodiscard]] QString helpText();

} // namespace vanzer::batch
