// SPDX-License-Identifier: MIT
#include "paper/painter.h"

#include <algorithm>

#include <QFile>

#include "paper/sign.h"

namespace vanzer::paper {

namespace {

void colour(cairo_t& context, Colour colour) {
    constexpr double whole = 255;
    cairo_set_source_rgb(&context, (colour >> 16U & 0xFFU) / whole, (colour >> 8U & 0xFFU) / whole,
                         (colour & 0xFFU) / whole);
}

cairo_status_t readOn(void* file, unsigned char* bytes, unsigned count) {
    const bool all = static_cast<QFile*>(file)->read(reinterpret_cast<char*>(bytes), count) == qint64{count};
    return all ? CAIRO_STATUS_SUCCESS : CAIRO_STATUS_READ_ERROR;
}

Surface loadSign() {
    QFile file(signFile());
    static_cast<void>(file.open(QIODevice::ReadOnly));
    return Surface(cairo_image_surface_create_from_png_stream(readOn, &file));
}

void trace(cairo_t& context, const Path& path) {
    auto point = path.points().begin();
    for (const Path::Step step : path.steps()) {
        switch (step) {
        case Path::Step::Move: cairo_move_to(&context, point->x, point->y); break;
        case Path::Step::Line: cairo_line_to(&context, point->x, point->y); break;
        case Path::Step::Curve:
            cairo_curve_to(&context, point[0].x, point[0].y, point[1].x, point[1].y, point[2].x, point[2].y);
            point += 2;
            break;
        case Path::Step::Close: cairo_close_path(&context); continue;
        }
        ++point;
    }
}

} // namespace

void Painter::draw(cairo_t& context, const Page& page) {
    for (const Drawing& drawing : page)
        std::visit([&](const auto& one) { draw(context, one); }, drawing);
    drawLines(context);
}

void Painter::draw(cairo_t& context, const DrawnText& text) {
    if (!lines_.empty() && (lines_.back().colour != black || text.colour != black))
        drawLines(context);
    const double em = text.font.points * mmPerPoint;
    colour(context, text.colour);
    for (Run& run : fonts_.face(text.font).shaped(text.text)) {
        for (cairo_glyph_t& glyph : run.glyphs) {
            glyph.x = text.base.x + glyph.x * em;
            glyph.y = text.base.y + glyph.y * em;
        }
        cairo_set_font_face(&context, run.font->drawn());
        cairo_set_font_size(&context, em);
        const int count = static_cast<int>(run.glyphs.size());
        if (letters_ == Letters::Outlines) {
            cairo_glyph_path(&context, run.glyphs.data(), count);
            cairo_fill(&context);
            continue;
        }
        cairo_show_text_glyphs(&context, run.letters.constData(), static_cast<int>(run.letters.size()),
                               run.glyphs.data(), count, run.clusters.data(), static_cast<int>(run.clusters.size()),
                               run.backward ? CAIRO_TEXT_CLUSTER_FLAG_BACKWARD : cairo_text_cluster_flags_t{});
    }
}

void Painter::draw(cairo_t& context, const DrawnLine& line) {
    if (!lines_.empty() && (lines_.back().width != line.width || lines_.back().colour != line.colour))
        drawLines(context);
    lines_.push_back(line);
}

/// Draws all pending lines at once. One by one they would take longer than all texts of a page.
void Painter::drawLines(cairo_t& context) {
    if (lines_.empty())
        return;
    for (const DrawnLine& line : lines_) {
        cairo_move_to(&context, line.from.x, line.from.y);
        cairo_line_to(&context, line.to.x, line.to.y);
    }
    colour(context, lines_.back().colour);
    cairo_set_line_width(&context, lines_.back().width);
    cairo_stroke(&context);
    lines_.clear();
}

void Painter::draw(cairo_t& context, const DrawnBox& box) {
    drawLines(context);
    cairo_rectangle(&context, std::min(box.from.x, box.to.x), std::min(box.from.y, box.to.y),
                    std::abs(box.to.x - box.from.x), std::abs(box.to.y - box.from.y));
    if (box.fill) {
        colour(context, *box.fill);
        cairo_fill_preserve(&context);
    }
    colour(context, black);
    cairo_set_line_width(&context, box.width);
    cairo_stroke(&context);
}

void Painter::draw(cairo_t& context, const DrawnSign& sign) {
    drawLines(context);
    if (sign_ == nullptr)
        sign_ = loadSign();
    cairo_save(&context);
    cairo_translate(&context, sign.at.x, sign.at.y);
    cairo_scale(&context, sign.size.x / cairo_image_surface_get_width(sign_.get()),
                sign.size.y / cairo_image_surface_get_height(sign_.get()));
    cairo_set_source_surface(&context, sign_.get(), 0, 0);
    cairo_paint(&context);
    cairo_restore(&context);
}

void Painter::draw(cairo_t& context, const DrawnPath& path) {
    drawLines(context);
    colour(context, path.colour);
    trace(context, path.path);
    if (!path.stroke) {
        cairo_fill(&context);
        return;
    }
    cairo_set_line_width(&context, path.stroke->width);
    const std::vector<double>& dashes = path.stroke->dashes;
    cairo_set_dash(&context, dashes.data(), static_cast<int>(dashes.size()), 0);
    cairo_stroke(&context);
    cairo_set_dash(&context, nullptr, 0, 0);
}

} // namespace vanzer::paper
