// SPDX-License-Identifier: MIT
// The frames that appear over or beside the table. Each has a form of its own. A new frame needs a form, whose property
// "posto" says where it appears, and a line in the list in frames.cpp.
#pragma once

#include <span>

#include <QWidget>

namespace vanzer::desktop {

/// Where a frame appears: to the right of the table, below it, or over its left part, middle, right part, bottom or the
/// whole table.
enum class Posto { Fianco, Sotto, Sinistra, Centro, Destra, Piede, Tabella };

struct DisegnoRiquadro {
    const char16_t* control;           ///< the frame's name among the controls
    QWidget* (*make)(QWidget& window); ///< makes its form, as a hidden child of the window
};

/// All frames. A later one covers an earlier one.
[[nodiscard]] std::span<const DisegnoRiquadro> frameDesigns();

/// Where the frame's form places it; Centro if the form has no such property.
[[nodiscard]] Posto posto(const QWidget& frame);

/// The height in pixels that a frame needs if it is `width` pixels wide.
[[nodiscard]] int frameHeight(const QWidget& frame, int width);

/// The rectangle of a frame, in pixels. `table` is the table, `whole` the window without its margins, `side` the room
/// beside the table. Frames beside the table share that room; a later one covers an earlier one.
[[nodiscard]] QRect frameRect(const QWidget& frame, const QRect& table, const QRect& whole, const QRect& side);

} // namespace vanzer::desktop
