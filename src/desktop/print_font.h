// The fonts of the paper. Texts are measured and drawn in one large size and scaled from there, so that a layout is the
// same on every printer, in a PDF and on the screen.
#pragma once

#include <QFont>
#include <QString>

namespace vanzer::desktop {

/// A font by the name that it goes by, and the installed family that is drawn.
struct Typeface {
    QString name;
    QString family;
};

/// The family of that name, capitals ignored; else the one that stands in for it, under the name asked for; else the
/// platform's own serif under its own name.
[[nodiscard]] Typeface typefaceFor(const QString& wanted);

struct PrintFont {
    Typeface face{};
    bool bold = false;
    bool italic = false;
    double points = 10;
};

inline constexpr double mmPerInch = 25.4;

/// Pixels of the em in which measuring and drawing are done.
inline constexpr int emPixels = 1000;

/// The font in a size of `emPixels`, without hints for any resolution.
[[nodiscard]] QFont largeFont(const PrintFont& font);

/// mm for each pixel of the large font.
[[nodiscard]] constexpr double mmPerPixel(double points) {
    constexpr double mmPerPoint = mmPerInch / 72;
    return points * mmPerPoint / emPixels;
}

} // namespace vanzer::desktop
