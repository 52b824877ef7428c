// What the window's own widgets say to a screen reader.
#pragma once

namespace vanzer::desktop {

/// From now on a drop-down list says its name, and the text that it shows as its value; the platform's own would say
/// the text in place of the name. A notice is an alert, which is told when it comes up.
void nameOwnWidgets();

} // namespace vanzer::desktop
