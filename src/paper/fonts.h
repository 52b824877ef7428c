// The fonts of the paper: which installed face stands for a name, and how wide a text is in it. Texts are measured
// without hints for any resolution, so that a layout is the same on every printer, in a PDF and on the screen.
#pragma once

#include <map>
#include <memory>
#include <tuple>

#include <QString>

#include "paper/page.h"

namespace vanzer::paper {

class Face;

/// A font by the name that it goes by, and the installed family that is drawn.
struct Typeface {
    QString name;
    QString family;
};

/// Nothing is looked up before it is asked for.
class Fonts {
  public:
    Fonts();
    ~Fonts();
    Fonts(const Fonts&) = delete;
    Fonts& operator=(const Fonts&) = delete;

    /// The family of that name, capitals ignored; else the one that stands in for it, under the name asked for; else
    /// the platform's own serif under its own name.
    [[nodiscard]] const Typeface& typefaceFor(const QString& wanted);

    /// Of a text on one line, mm.
    [[nodiscard]] double width(const QString& text, const Font& font);
    /// From the top of a line down to its base, mm.
    [[nodiscard]] double ascent(const Font& font);
    /// Of a line, mm.
    [[nodiscard]] double height(const Font& font);

    /// Valid as long as the fonts are.
    [[nodiscard]] Face& face(const Font& font);

  private:
    std::map<QString, Typeface> typefaces_;
    std::map<std::tuple<QString, bool, bool>, std::unique_ptr<Face>> faces_;
};

} // namespace vanzer::paper
