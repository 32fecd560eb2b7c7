#include "image/picture/TilePainter.h"

#include "image/picture/Image.h"
#include "image/picture/TexelRects.h"

#include <array>
#include <gtest/gtest.h>
#include <numeric>
#include <random>
#include <vector>

namespace keltavlo {

namespace {

constexpr PixelSize view{50, 40};
constexpr std::size_t viewPixels = 50 * 40, anyCount = 10000;

// Marks every screen pixel that shows one of the texels, according to PaintTiles.
std::vector<Color> PaintRun(const TexelRun& run, PixelSize size, const TileViewport& viewport) {
    Image picture(size.width, size.height);
    for (int x = run.first; x < run.first + run.count; ++x) picture.SetPixel(x, run.row, 1);
    std::array<std::uint32_t, 256> table;
    for (std::uint32_t v = 0; v < table.size(); ++v) table[v] = v;
    std::vector<Color> pixels(viewPixels);
    PaintTiles(picture, table.data(), viewport,
               {0, 0, view.width, view.height, pixels.data(), static_cast<std::size_t>(view.width)});
    return pixels;
}

std::vector<Color> FillRects(const std::vector<ScreenRect>& rects) {
    std::vector<Color> pixels(viewPixels);
    for (const ScreenRect& rect : rects)
        for (int y = rect.top; y < rect.top + rect.height; ++y)
            for (int x = rect.left; x < rect.left + rect.width; ++x) {
                const int place = y * view.width + x;
                ++pixels.at(static_cast<std::size_t>(place));
            }
    return pixels;
}

} // namespace

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

TEST(TilePainter, RectsCoverTheTexelsInAllTilesAndNothingElse) {
    std::mt19937 random(1);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    for (int round = 0; round < 500; ++round) {
        const PixelSize size{1 + below(60), 1 + below(60)};
        const int first = below(size.width);
        const TexelRun run{below(size.height), first, 1 + below(size.width - first)};
        const TileViewport viewport{1 << below(5), below(100), below(100)};
        ASSERT_EQ(FillRects(FindTexelRects(run, size, viewport, view, anyCount)),
                  PaintRun(run, size, viewport))
            << size.width << " x " << size.height << " at " << viewport.zoom;
    }
    const std::vector<ScreenRect> tooMany = FindTexelRects({0, 0, 1}, {2, 2}, {}, view, 100);
    EXPECT_EQ(FillRects(tooMany), std::vector<Color>(viewPixels, 1));
}

} // namespace keltavlo
