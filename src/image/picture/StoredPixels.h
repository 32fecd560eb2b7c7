#pragma once

#include "image/picture/Color.h"

#include <cstdint>
#include <span>

namespace keltavlo {

// Converts rows of stored pixels to colors and back.

// Looks up one color per output pixel. Unchecked: the list must contain every index.
void ExpandIndices(std::span<const std::uint8_t> indices, std::span<const Color> colors,
                   std::span<Color> output);

// A pixel of three bytes: blue, green, red.
inline constexpr std::size_t bgrPixelSize = 3;

// Converts stored pixels to opaque colors until the output is full.
void ExpandBgr(std::span<const std::uint8_t> stored, std::span<Color> output);

// Stores the colors without their alpha.
void PackBgr(std::span<const Color> colors, std::span<std::uint8_t> stored);

} // namespace keltavlo
