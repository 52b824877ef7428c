// The frames that come up over or beside the table. Each is a form of its own; a new one needs its form, a line in the
// list of frames.cpp and, in the form, the property "posto" that says where it comes up.
#pragma once

#include <span>

#include <QWidget>

namespace vanzer::desktop {

/// Where a frame comes up: beside the table on the right, below it, or over its left part, middle, right part or foot.
enum class Posto { Fianco, Sotto, Sinistra, Centro, Destra, Piede, Tabella };

struct DisegnoRiquadro {
    const char16_t* control;           ///< the frame's name among the controls
    QWidget* (*make)(QWidget& window); ///< its form, as a hidden child of the window
};

/// The frames. Of two that lie over each other the later one is on top.
[[nodiscard]] std::span<const DisegnoRiquadro> frameDesigns();

/// What the frame's form says; over the middle if it says nothing.
[[nodiscard]] Posto posto(const QWidget& frame);

/// The height that a frame needs when it is `width` wide.
[[nodiscard]] int frameHeight(const QWidget& frame, int width);

/// Where a frame lies. `table` is the table as it is, `whole` the window without its margins, `side` the room beside
/// the table, which frames there share: the later one covers the earlier.
[[nodiscard]] QRect frameRect(const QWidget& frame, const QRect& table, const QRect& whole, const QRect& side);

} // namespace vanzer::desktop
