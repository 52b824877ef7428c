// Texts of the user's are shown to the letter, whatever stands in them.
#pragma once

#include <QString>

namespace vanzer::desktop {

/// The text for a place that takes mark-up where it finds some, such as a tool tip: it is shown to the letter there,
/// and loads nothing.
[[nodiscard]] QString testoSemplice(const QString& text);

} // namespace vanzer::desktop
