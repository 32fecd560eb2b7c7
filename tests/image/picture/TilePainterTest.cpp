#include "image/picture/TilePainter.h"

#include "image/picture/Image.h"

#include <array>
#include <gtest/gtest.h>
#include <numeric>
#include <vector>

namespace keltavlo {

TEST(TilePainter, ShowsTheTilingAtEveryZoomAndCorner) {
    std::array<std::uint32_t, 256> inverse;
    for (std::uint32_t v = 0; v < 256; ++v) inverse[v] = (255 - v) * 0x01010101U;
    for (const auto& [width, height] : {std::pair(1, 1), {3, 5}, {8, 8}, {70, 2}}) {
        Image picture(width, height);
        std::iota(picture.Pixels().begin(), picture.Pixels().end(), 0x80102030U);
        for (const int zoom : {1, 2, 4, 8, 16, 3})
            for (const auto& [scrollX, scrollY] : {std::pair(0, 0), {2, 1}, {width + 7, 3 * height + 1}})
                for (const auto& [left, top] : {std::pair(0, 0), {5, 13}}) {
                    constexpr int targetWidth = 61, targetHeight = 43, stride = 64;
                    std::vector<Color> pixels(stride * targetHeight, 1);
                    PaintTiles(picture, inverse.data(), {zoom, scrollX, scrollY},
                               {left, top, targetWidth, targetHeight, pixels.data(), stride});
                    for (int y = 0; y < targetHeight; ++y)
                        for (int x = 0; x < stride; ++x) {
                            const Color texel =
                                picture.GetPixelWrapped(static_cast<unsigned>((left + x) / zoom + scrollX),
                                                        static_cast<unsigned>((top + y) / zoom + scrollY));
                            const Color expected = x < targetWidth ? ~texel : 1;
                            ASSERT_EQ(pixels[static_cast<std::size_t>(y * stride + x)], expected)
                                << width << "x" << height << " zoom " << zoom << " at " << x << "," << y;
                        }
                }
    }
}

} // namespace keltavlo
