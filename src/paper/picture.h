// A page as a picture, for the screen.
#pragma once

#include "paper/fonts.h"
#include "paper/page.h"

namespace vanzer::paper {

/// Points of 32 bits, 0xffRRGGBB in the machine's order, row by row.
struct Picture {
    unsigned char* points;
    int width;
    int height;
    int bytesPerRow; ///< a multiple of 4
};

/// Draws the page over what the picture shows. Its left upper corner lies `corner` points to the right and down of the
/// sheet's, `perMm` of which are a mm.
void drawPage(const Page& page, Fonts& fonts, const Picture& picture, Punto corner, double perMm);

} // namespace vanzer::paper
