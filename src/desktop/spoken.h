// SPDX-License-Identifier: MIT
// What our own widgets say to a screen reader.
#pragma once

namespace vanzer::desktop {

/// Installs accessible interfaces for our widgets. A drop-down list says its name, and its text as the value; Qt's own
/// would say the text instead of the name. A notice is an alert, which is announced when it appears.
void nameOwnWidgets();

} // namespace vanzer::desktop
