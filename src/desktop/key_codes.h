// SPDX-License-Identifier: MIT
// The key codes that the models use.
#pragma once

#include <Qt>

namespace vanzer::desktop {

/// The code of a key that moves between rows (arrow up or down, page keys); 0 for every other key.
constexpr int rowKeyCode(int key) {
    switch (key) {
    case Qt::Key_PageUp: return 33;
    case Qt::Key_PageDown: return 34;
    case Qt::Key_Up: return 38;
    case Qt::Key_Down: return 40;
    default: return 0;
    }
}

} // namespace vanzer::desktop
