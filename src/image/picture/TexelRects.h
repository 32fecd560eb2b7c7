#pragma once

#include "image/picture/TilePainter.h"

#include <vector>

namespace keltavlo {

// Texels of one row of a picture, starting with `first`. They do not wrap at the right edge.
struct TexelRun {
    int row = 0;
    int first = 0;
    int count = 1;
};

struct PixelSize {
    int width = 0;
    int height = 0;
};

// A rectangle of a view in screen pixels.
struct ScreenRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

// Painting more rectangles than this costs more than painting a whole view.
inline constexpr std::size_t mostTexelRects = 64;

// Returns where the texels appear in a view of a picture: a rectangle for each tile, or the whole view if
// there would be more than `largestCount`.
std::vector<ScreenRect> FindTexelRects(const TexelRun& run, PixelSize picture, const TileViewport& viewport,
                                       PixelSize view, std::size_t largestCount = mostTexelRects);

} // namespace keltavlo
