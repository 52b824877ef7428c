// SPDX-License-Identifier: MIT
// Finds the installed font for a name and measures texts in it. Texts are measured without hinting, so that a layout is
// the same on every printer, in a PDF and on the screen.
#pragma once

#include <map>
#include <memory>
#include <tuple>

#include <QString>

#include "paper/page.h"

namespace vanzer::paper {

class Face;

/// The name of a font, and the installed family that is used for it.
struct Typeface {
    QString name;
    QString family;
};

/// Looks fonts up when they are first used.
class Fonts {
  public:
    Fonts();
    ~Fonts();
    Fonts(const Fonts&) = delete;
    Fonts& operator=(const Fonts&) = delete;

    /// The font for a name, case ignored. If there is no such family, a similar one is used under the requested name.
    /// If there is none either, the result is the platform's serif font under that font's name.
    [[nodiscard]] const Typeface& typefaceFor(const QString& wanted);

    /// Width of a text on one line, in mm.
    [[nodiscard]] double width(const QString& text, const Font& font);
    /// From the top of a line down to its base line, in mm.
    [[nodiscard]] double ascent(const Font& font);
    /// Height of a line, in mm.
    [[nodiscard]] double height(const Font& font);

    /// The face of a font. The reference holds as long as this object.
    [[nodiscard]] Face& face(const Font& font);

  private:
    std::map<QString, Typeface> typefaces_;
    std::map<std::tuple<QString, bool, bool>, std::unique_ptr<Face>> faces_;
};

} // namespace vanzer::paper
