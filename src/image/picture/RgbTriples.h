#pragma once

#include "image/picture/ColorList.h"

#include <cstdint>
#include <span>

namespace keltavlo {

// Palettes as files of the games hold them: red, green and blue of each entry, one byte each.

inline constexpr std::size_t rgbTripleSize = 3;

// As many opaque colours as the bytes hold.
ColorList ColorsFromTriples(std::span<const std::uint8_t> bytes);

// Fills the bytes from the list's first entry on; black where the list ends early.
void PutTriples(const ColorList& list, std::span<std::uint8_t> bytes);

} // namespace keltavlo
