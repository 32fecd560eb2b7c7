#include "tool/pictures/BlockSummary.h"

#include "image/picture/Texture.h"
#include "tool/pictures/IndexingRules.h"

namespace keltavlo {

BlockSummary SummarizeBlock(const Texture& texture, std::span<const std::uint8_t> indices, int x, int y,
                            int level) {
    const auto side = std::size_t{1} << level;
    const auto width = static_cast<std::size_t>(texture.GetWidth());
    const std::size_t corner = (static_cast<std::size_t>(y) * width + static_cast<std::size_t>(x)) * side;
    std::uint32_t red = 0, green = 0, blue = 0, solid = 0, fullbright = 0;
    for (std::size_t row = corner; row < corner + side * width; row += width)
        for (std::size_t i = row; i < row + side; ++i) {
            const Color color = texture.Pixels()[i];
            if (Alpha(color) < cutoutAlpha) continue;
            red += Red(color);
            green += Green(color);
            blue += Blue(color);
            ++solid;
            if (indices[i] >= firstFullbright) ++fullbright;
        }
    const std::uint32_t divisor = solid == 0 ? 1 : solid;
    return {Compose(red / divisor, green / divisor, blue / divisor),
            2 * solid<side * side, 2 * fullbright> side * side};
}

} // namespace keltavlo
