#pragma once

#include "image/picture/Color.h"

#include <cstddef>

namespace keltavlo {

class Image;

// Where a picture that tiles the plane without end is looked at: `zoom` screen pixels a texel, with the texel
// (scrollX, scrollY) in the top left corner of the view. Scroll positions may lie beyond the picture.
struct TileViewport {
    int zoom = 1;
    int scrollX = 0;
    int scrollY = 0;
};

// A rectangle of the view in screen pixels, and the memory that is to receive it.
struct TileTarget {
    int left = 0; // 0 or more, as top
    int top = 0;
    int width = 0;
    int height = 0;
    Color* pixels = nullptr;
    std::size_t stride = 0; // pixels from one row to the next
};

// Fills the target with the tiling as the viewport shows it, every texel through the channel table (256
// entries). Alpha is not composited. The picture must have at least one pixel.
void PaintTiles(const Image& picture, const std::uint32_t* table256, const TileViewport& viewport,
                const TileTarget& target);

} // namespace keltavlo
