#pragma once

#include "image/picture/Color.h"

#include <span>

namespace keltavlo {

class Texture;

// Summary of the texels that a texel of a mip level covers.
struct BlockSummary {
    Color color;        // the mean of the texels that are not transparent; opaque
    bool isTransparent; // most texels are
    bool isFullbright;  // most indices are
};

// Summarizes the texels that texel (x, y) of the mip level covers: 2, 4 or 8 in each direction. `indices` are
// those of the picture.
BlockSummary SummarizeBlock(const Texture& texture, std::span<const std::uint8_t> indices, int x, int y,
                            int level);

} // namespace keltavlo
