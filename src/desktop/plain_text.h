// SPDX-License-Identifier: MIT
// Shows texts of the user literally, even if they look like mark-up.
#pragma once

#include <QString>

namespace vanzer::desktop {

/// Escapes a text for a widget that would interpret mark-up, such as a tool tip. It is then shown literally and loads
/// nothing.
[[nodiscard]] QString testoSemplice(const QString& text);

} // namespace vanzer::desktop
