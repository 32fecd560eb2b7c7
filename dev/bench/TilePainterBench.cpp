#include "image/picture/Image.h"
#include "image/picture/TexelRects.h"
#include "image/picture/TilePainter.h"

#include <array>
#include <benchmark/benchmark.h>
#include <cstring>
#include <numeric>
#include <vector>

namespace keltavlo {

namespace {

constexpr int surfaceWidth = 3840;
constexpr int surfaceHeight = 2160;
constexpr std::size_t surfacePixels = std::size_t{surfaceWidth} * surfaceHeight;

void CopySurface(benchmark::State& state) {
    const std::vector<Color> source(surfacePixels, 1);
    std::vector<Color> surface(surfacePixels);
    for (auto _ : state) {
        std::memcpy(surface.data(), source.data(), surfacePixels * sizeof(Color));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(CopySurface)->Unit(benchmark::kMillisecond);

// Arguments: side of the picture, zoom.
void PaintSurface(benchmark::State& state) {
    const int side = static_cast<int>(state.range(0));
    Image picture(side, side);
    std::iota(picture.Pixels().begin(), picture.Pixels().end(), 0xFF102030U);
    std::array<std::uint32_t, 256> table;
    for (std::uint32_t v = 0; v < 256; ++v) table[v] = v / 2 * 0x010101U | v << 24;
    std::vector<Color> surface(surfacePixels);
    for (auto _ : state) {
        PaintTiles(picture, table.data(), {static_cast<int>(state.range(1)), 3, 5},
                   {0, 0, surfaceWidth, surfaceHeight, surface.data(), surfaceWidth});
        benchmark::ClobberMemory();
    }
}
BENCHMARK(PaintSurface)->ArgsProduct({{8, 64, 256, 1024}, {1, 2, 4, 8, 16}})->Unit(benchmark::kMillisecond);

constexpr PixelSize strokeView{1920, 1080};
constexpr std::size_t strokePixels = std::size_t{1920} * 1080;

void StrokeCopyView(benchmark::State& state) {
    const std::vector<Color> source(strokePixels, 1);
    std::vector<Color> surface(strokePixels);
    for (auto _ : state) {
        std::memcpy(surface.data(), source.data(), strokePixels * sizeof(Color));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(StrokeCopyView)->Unit(benchmark::kMicrosecond);

// Repainting after one step of a brush stroke. Arguments: side of the picture, zoom.
void StrokeRepaint(benchmark::State& state) {
    const int side = static_cast<int>(state.range(0));
    Image picture(side, side);
    std::array<std::uint32_t, 256> table;
    for (std::uint32_t v = 0; v < 256; ++v) table[v] = v / 2 * 0x010101U | v << 24;
    std::vector<Color> surface(strokePixels);
    const TileViewport viewport{static_cast<int>(state.range(1)), 3, 5};
    int step = 0;
    for (auto _ : state) {
        const int texel = ++step % side;
        for (const ScreenRect& rect : FindTexelRects({texel, texel, 1}, {side, side}, viewport, strokeView))
            PaintTiles(picture, table.data(), viewport,
                       {rect.left, rect.top, rect.width, rect.height,
                        surface.data() + static_cast<std::size_t>(rect.top) * 1920 + rect.left, 1920});
        benchmark::ClobberMemory();
    }
}
BENCHMARK(StrokeRepaint)->ArgsProduct({{8, 64, 1024}, {1, 2, 4, 8, 16}})->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace keltavlo
