// SPDX-License-Identifier: MIT
// Draws pages with Cairo. Internal to this room.
#pragma once

#include <cairo.h>

#include "paper/face.h"
#include "paper/fonts.h"
#include "paper/page.h"

namespace vanzer::paper {

using Surface = Owned<cairo_surface_t, cairo_surface_destroy>;
using Context = Owned<cairo_t, cairo_destroy>;

/// How letters are drawn. Text can be searched in a PDF. Outlines keep exact positions on a screen, where text would be
/// moved to whole pixels.
enum class Letters { Text, Outlines };

class Painter {
  public:
    /// `fonts` must outlive the painter.
    Painter(Fonts& fonts, Letters letters) : fonts_(fonts), letters_(letters) {}
    /// Draws the page; one unit of the context is a mm. Errors show in the context's status.
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
    std::vector<DrawnLine> lines_; ///< pending lines of one pen; black texts may come before black lines
    Surface sign_;                 ///< null before its first use
};

} // namespace vanzer::paper
