// SPDX-License-Identifier: MIT
// A face of a font family, and the fonts used for letters that it lacks. Internal to this room.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <QByteArray>
#include <QString>

#include <cairo.h>
#include <fontconfig/fontconfig.h>
#include <hb.h>

namespace vanzer::paper {

/// A deleter that frees objects of a C library with `release`.
template<auto release> struct Release {
    template<typename T> void operator()(T* made) const { release(made); }
};
template<typename T, auto release> using Owned = std::unique_ptr<T, Release<release>>;
using Pattern = Owned<FcPattern, FcPatternDestroy>;

/// Name of the installed family, as the platform spells it; empty if it isn't installed.
[[nodiscard]] QString installedFamily(const QString& family);
/// The family that the platform substitutes for that name.
[[nodiscard]] QString matchingFamily(const QString& family);

/// An open font file, for measuring and drawing.
class OpenFont {
  public:
    /// `found` is the fontconfig match that names the file.
    explicit OpenFont(FcPattern& found);

    [[nodiscard]] hb_font_t* measured() const { return measured_.get(); }
    [[nodiscard]] cairo_font_face_t* drawn() const { return drawn_.get(); }
    /// The em in the units in which the font is measured.
    [[nodiscard]] double em() const { return em_; }
    /// True if the font has a glyph for the letter.
    [[nodiscard]] bool has(char32_t letter) const;

  private:
    Owned<hb_font_t, hb_font_destroy> measured_;
    double em_ = 1;
    Owned<cairo_font_face_t, cairo_font_face_destroy> drawn_;
};

/// Glyphs of one font, side by side. Positions are in ems, right and down from the start of the text's base line.
struct Run {
    const OpenFont* font;
    QByteArray letters{}; ///< the letters that they draw, UTF-8
    std::vector<cairo_glyph_t> glyphs{};
    std::vector<cairo_text_cluster_t> clusters{};
    bool backward = false; ///< runs from right to left
};

class Face {
  public:
    Face(const QString& family, bool bold, bool italic);

    /// Ascent and line height, in ems.
    [[nodiscard]] double ascent() const { return ascent_; }
    [[nodiscard]] double height() const { return height_; }

    /// Width of a text on one line, in ems. Line breaks count as blanks and soft hyphens are left out. A letter that no
    /// font has becomes a box.
    [[nodiscard]] double width(const QString& text);
    /// The glyphs of a text on one line.
    [[nodiscard]] std::vector<Run> shaped(const QString& text);

  private:
    /// Calls `take` for each run of letters with one font and script, with their glyphs.
    template<typename Take> void eachRun(const std::u32string& letters, Take take);
    [[nodiscard]] const OpenFont& fontOf(char32_t letter);
    [[nodiscard]] const OpenFont& substituteFor(char32_t letter);

    Pattern wanted_;
    Owned<hb_buffer_t, hb_buffer_destroy> buffer_;
    std::unique_ptr<OpenFont> own_;
    double ascent_ = 0;
    double height_ = 0;
    Owned<FcFontSet, FcFontSetSortDestroy> others_; ///< the platform's substitutes, best match first
    std::map<int, OpenFont> opened_;                ///< opened substitutes, by index in `others_`
    std::map<char32_t, const OpenFont*> known_;     ///< fonts for letters that the face lacks
};

} // namespace vanzer::paper
