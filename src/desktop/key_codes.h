// The codes by which the models know the keys.
#pragma once

#include <Qt>

namespace vanzer::desktop {

/// Arrows up and down and the page keys, which move from row to row; 0 for every other key.
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
