// SPDX-License-Identifier: MIT
// Draws a page into a picture, for the screen.
#pragma once

#include "paper/fonts.h"
#include "paper/page.h"

namespace vanzer::paper {

/// Pixels of 32 bits, row by row: 0xffRRGGBB in the machine's byte order. Width and height are in pixels.
struct Picture {
    unsigned char* points;
    int width;
    int height;
    int bytesPerRow; ///< a multiple of 4
};

/// Draws the page over the picture. `perMm` is the number of pixels per mm. `corner` is the position of the picture's
/// top left corner on the sheet, in pixels.
void drawPage(const Page& page, Fonts& fonts, const Picture& picture, Punto corner, double perMm);

} // namespace vanzer::paper
