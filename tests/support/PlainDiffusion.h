#pragma once

#include "image/picture/ColorList.h"

#include <algorithm>
#include <span>

namespace keltavlo {

// Error diffusion along one row by its definition, with the list's own search for each pixel.
inline void DiffusePlainly(std::span<Color> row, const ColorList& list) {
    int red = 0, green = 0, blue = 0;
    const auto clamped = [](int channel) { return static_cast<std::uint32_t>(std::clamp(channel, 0, 255)); };
    for (Color& pixel : row) {
        red += static_cast<int>(Red(pixel));
        green += static_cast<int>(Green(pixel));
        blue += static_cast<int>(Blue(pixel));
        pixel = *list.FindNearest(Compose(clamped(red), clamped(green), clamped(blue), Alpha(pixel)));
        red -= static_cast<int>(Red(pixel));
        green -= static_cast<int>(Green(pixel));
        blue -= static_cast<int>(Blue(pixel));
    }
}

} // namespace keltavlo
