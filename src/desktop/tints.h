// The window's own colours, made from the palette of the platform so that dark palettes and strong contrasts hold.
#pragma once

#include <QColor>
#include <QPalette>

namespace vanzer::desktop {

struct Tints {
    explicit Tints(const QPalette& palette);

    QColor fillable; ///< fields that the user fills in: a light blue
    QColor computed; ///< fields that the system fills in: a grey
    QColor band;     ///< rows of every other day
    QColor total;    ///< rows of totals
    QColor marked;   ///< cells with the window's own colour
    QColor rule;     ///< the line below the end of a day
    QColor faint;    ///< texts that stand back
    QColor place;    ///< rows of the guide's places

    QColor drive; ///< activities of the line of time
    QColor stop;
    QColor meal;
    QColor pause;
    QColor night;
};

/// The colour of a category of the guide, told by its number: warm for what is worth a visit, the warmer the more, cold
/// for where to stay, eat and fill up, a grey for one that isn't known. White can be read on each of them.
[[nodiscard]] QColor coloreCategoria(int category);

/// What a field's palette has of its own: its ground, for entry boxes as for lists. All else stays the window's.
[[nodiscard]] QPalette fieldPalette(const QColor& ground);

} // namespace vanzer::desktop
