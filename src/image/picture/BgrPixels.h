#pragma once

#include "image/picture/Color.h"

#include <span>

namespace keltavlo {

// Pixels stored as three bytes: blue, green, red.

inline constexpr std::size_t bgrPixelSize = 3;

// Makes opaque colours of stored pixels; the bytes are as many as the output takes.
void ExpandBgr(std::span<const std::uint8_t> stored, std::span<Color> output);

// Stores the colours without their alpha.
void PackBgr(std::span<const Color> colors, std::span<std::uint8_t> stored);

} // namespace keltavlo
