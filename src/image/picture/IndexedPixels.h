#pragma once

#include "image/picture/Color.h"

#include <cstdint>
#include <span>

namespace keltavlo {

// Looks up as many colours as the output takes. Unchecked: the list has every index.
void ExpandIndices(std::span<const std::uint8_t> indices, std::span<const Color> colors,
                   std::span<Color> output);

} // namespace keltavlo
