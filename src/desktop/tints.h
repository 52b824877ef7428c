// SPDX-License-Identifier: MIT
// The window's own colours, derived from the platform's palette so that they suit dark and high-contrast themes.
#pragma once

#include <QColor>
#include <QPalette>

namespace vanzer::desktop {

struct Tints {
    explicit Tints(const QPalette& palette);

    QColor fillable; ///< fields that the user fills in: a light blue
    QColor computed; ///< fields that the program fills in: a grey
    QColor band;     ///< rows of every other day
    QColor total;    ///< rows of totals
    QColor marked;   ///< marked cells
    QColor rule;     ///< the line below the end of a day
    QColor faint;    ///< less important texts
    QColor place;    ///< rows of the guide's places

    QColor drive; ///< activities of the time line
    QColor stop;
    QColor meal;
    QColor pause;
    QColor night;
};

/// The colour of a category of the guide, by its number. Places worth a visit are warm, and warmer the more they are
/// worth. Places to stay, eat and fill up are cold. Unknown categories are grey. White text is readable on all of them.
[[nodiscard]] QColor coloreCategoria(int category);

/// A palette that sets only the background of fields and lists. All other colours stay those of the window.
[[nodiscard]] QPalette fieldPalette(const QColor& ground);

} // namespace vanzer::desktop
