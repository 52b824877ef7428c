// Texts of the user's are shown as they are written, whatever stands in them.
#pragma once

#include <QString>

namespace vanzer::desktop {

/// The text for a place that takes mark-up where it finds some, such as a tool tip: it is shown as it is written there,
/// and loads nothing.
[[nodiscard]] QString testoSemplice(const QString& text);

} // namespace vanzer::desktop
