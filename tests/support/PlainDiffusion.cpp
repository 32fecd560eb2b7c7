#include "support/PlainDiffusion.h"

#include "image/picture/ColorList.h"

#include <algorithm>

namespace keltavlo {

void DiffusePlainly(std::span<Color> row, const ColorList& list) {
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
