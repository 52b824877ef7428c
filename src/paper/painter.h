// Pages on a surface of Cairo's. Known to the paper alone.
#pragma once

#include <cairo.h>

#include "paper/face.h"
#include "paper/fonts.h"
#include "paper/page.h"

namespace vanzer::paper {

using Surface = Owned<cairo_surface_t, cairo_surface_destroy>;
using Context = Owned<cairo_t, cairo_destroy>;

/// What becomes of letters. As outlines they can't be searched, but on a screen none is moved to the next point.
enum class Letters { Text, Outlines };

class Painter {
  public:
    /// `fonts` lives as long.
    Painter(Fonts& fonts, Letters letters) : fonts_(fonts), letters_(letters) {}
    /// Draws the page; one of the context's units is a mm. Whether that went well is asked of the context.
    void draw(cairo_t& context, const Page& page);

  private:
    void draw(cairo_t& context, const DrawnText& text);
    void draw(cairo_t& context, const DrawnLine& line);
    void draw(cairo_t& context, const DrawnBox& box);
    void draw(cairo_t& context, const DrawnSign& sign);
    void draw(cairo_t& context, const DrawnPath& path);
    void drawLines(cairo_t& context);

    Fonts& fonts_;
    Letters letters_;
    std::vector<DrawnLine> lines_; ///< of one pen, with nothing else drawn since but black on black
    Surface sign_;                 ///< null until it is drawn
};

} // namespace vanzer::paper
