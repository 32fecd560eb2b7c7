#pragma once

#include "image/picture/Color.h"

#include <cstddef>

namespace keltavlo {

class Image;

// The visible part of a picture that tiles the plane without end: each texel takes `zoom` screen
// pixels, and the texel (scrollX, scrollY) is in the top left corner of the view. Scroll positions
// may exceed the picture.
struct TileViewport {
    int zoom = 1;
    int scrollX = 0;
    int scrollY = 0;
};

// A rectangle of the view in screen pixels, and the memory to write it to.
struct TileTarget {
    int left = 0; // not negative, like top
    int top = 0;
    int width = 0;
    int height = 0;
    Color* pixels = nullptr;
    std::size_t stride = 0; // pixels from one row to the next
};

// Fills the target with the tiling that the viewport shows, each texel mapped through the channel table (256
// entries). Alpha is not composited. The picture must have at least one pixel.
void PaintTiles(const Image& picture, const std::uint32_t* table256, const TileViewport& viewport,
                const TileTarget& target);

} // namespace keltavlo
