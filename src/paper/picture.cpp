// SPDX-License-Identifier: MIT
#include "paper/picture.h"

#include "paper/painter.h"

namespace vanzer::paper {

void drawPage(const Page& page, Fonts& fonts, const Picture& picture, Punto corner, double perMm) {
    const Surface surface(cairo_image_surface_create_for_data(picture.points, CAIRO_FORMAT_RGB24, picture.width,
                                                              picture.height, picture.bytesPerRow));
    const Context context(cairo_create(surface.get()));
    cairo_translate(context.get(), -corner.x, -corner.y);
    cairo_scale(context.get(), perMm, perMm);
    const Owned<cairo_font_options_t, cairo_font_options_destroy> plain(cairo_font_options_create());
    cairo_font_options_set_hint_style(plain.get(), CAIRO_HINT_STYLE_NONE);
    cairo_set_font_options(context.get(), plain.get());
    Painter(fonts, Letters::Outlines).draw(*context, page);
    cairo_surface_flush(surface.get());
}

} // namespace vanzer::paper
