#pragma once

#include "image/picture/Color.h"

#include <cstdint>
#include <span>

namespace keltavlo {

// Rows of pixels as files store them, made into colors and back.

// Looks up as many colors as the output takes. Unchecked: the list has every index.
void ExpandIndices(std::span<const std::uint8_t> indices, std::span<const Color> colors,
                   std::span<Color> output);

// Pixels of three bytes: blue, green, red.
inline constexpr std::size_t bgrPixelSize = 3;

// Makes opaque colors of stored pixels; the bytes are as many as the output takes.
void ExpandBgr(std::span<const std::uint8_t> stored, std::span<Color> output);

// Stores the colors without their alpha.
void PackBgr(std::span<const Color> colors, std::span<std::uint8_t> stored);

} // namespace keltavlo
