// A face of a family, and the fonts that stand in for the letters that it lacks. Known to the paper alone.
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

/// Lets go of what a C library has made.
template<auto release> struct Release {
    template<typename T> void operator()(T* made) const { release(made); }
};
template<typename T, auto release> using Owned = std::unique_ptr<T, Release<release>>;
using Pattern = Owned<FcPattern, FcPatternDestroy>;

/// The family as the platform writes it; empty if it isn't installed.
[[nodiscard]] QString installedFamily(const QString& family);
/// The family that the platform takes for that name.
[[nodiscard]] QString matchingFamily(const QString& family);

/// A font file, open for measuring and drawing.
class OpenFont {
  public:
    /// `found` names the file.
    explicit OpenFont(FcPattern& found);

    [[nodiscard]] hb_font_t* measured() const { return measured_.get(); }
    [[nodiscard]] cairo_font_face_t* drawn() const { return drawn_.get(); }
    /// In the units of its measures.
    [[nodiscard]] double em() const { return em_; }
    /// Whether it has a glyph for the letter.
    [[nodiscard]] bool has(char32_t letter) const;

  private:
    Owned<hb_font_t, hb_font_destroy> measured_;
    double em_ = 1;
    Owned<cairo_font_face_t, cairo_font_face_destroy> drawn_;
};

/// Glyphs of one font side by side. Places are ems from where the text begins on its base line, to the right and down.
struct Run {
    const OpenFont* font;
    QByteArray letters{}; ///< that they draw, UTF-8
    std::vector<cairo_glyph_t> glyphs{};
    std::vector<cairo_text_cluster_t> clusters{};
    bool backward = false; ///< from right to left
};

class Face {
  public:
    Face(const QString& family, bool bold, bool italic);

    /// Ems.
    [[nodiscard]] double ascent() const { return ascent_; }
    [[nodiscard]] double height() const { return height_; }

    /// Of a text on one line, ems. Breaks are drawn as blanks, marks for hyphenation not at all; a letter that no font
    /// has becomes a box.
    [[nodiscard]] double width(const QString& text);
    /// The glyphs of that line.
    [[nodiscard]] std::vector<Run> shaped(const QString& text);

  private:
    /// Takes letters of one font and script at a time, with their glyphs.
    template<typename Take> void eachRun(const std::u32string& letters, Take take);
    [[nodiscard]] const OpenFont& fontOf(char32_t letter);
    [[nodiscard]] const OpenFont& substituteFor(char32_t letter);

    Pattern wanted_;
    Owned<hb_buffer_t, hb_buffer_destroy> buffer_;
    std::unique_ptr<OpenFont> own_;
    double ascent_ = 0;
    double height_ = 0;
    Owned<FcFontSet, FcFontSetSortDestroy> others_; ///< that the platform would take instead, the likest first
    std::map<int, OpenFont> opened_;                ///< of those
    std::map<char32_t, const OpenFont*> known_;     ///< for letters that the face lacks
};

} // namespace vanzer::paper
