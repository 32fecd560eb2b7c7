#pragma once

#include "image/picture/ColorList.h"

namespace keltavlo {

// Makes a palette of at most `count` colors for the pixels, dark colors first. If the pixels have no more
// colors than that, these are the palette; otherwise the sum of the pixels' distances (ColorDistance) from
// the nearest entries is nearly minimal. `count` is at least 1.
ColorList MakeOwnPalette(std::span<const Color> pixels, std::size_t count);

} // namespace keltavlo
