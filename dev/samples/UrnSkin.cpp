#include "UrnSkin.h"

#include "Paint.h"
#include "TileNoise.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <span>
#include <string_view>

namespace keltavlo {

namespace {

constexpr Ramp clay{160, 12};
constexpr Ramp glaze{40, 6};

using Rows = std::span<const std::string_view>;

constexpr std::string_view meander[] = {
    "################", //
    "................", //
    "############.###", //
    "#..........#.#..", //
    "#.########.#.#..", //
    "#.#......#.#.#..", //
    "#.#.####.#.#.#..", //
    "#.#.#..#.#.#.#..", //
    "#.#.##.#.#.#.#..", //
    "#.#....#.#.#.#..", //
    "#.######.#.###..", //
    "#........#......", //
    "##########.#####", //
    "................", //
    "################", //
};
constexpr std::string_view fish[] = {
    "................................", //
    ".............#####..............", //
    "..........##########............", //
    ".##.....##################......", //
    ".####.####.##.##.##..#######....", //
    "..########################..##..", //
    "...#####.##.##.##.##.#####..###.", //
    "...###########################..", //
    "..######.##.##.##.##.########...", //
    ".####.####################......", //
    ".##.....###########..##.........", //
    "...........####....##...........", //
    "................................", //
};

// Whether the texel is painted if the rows repeat side by side, enlarged `scale` times.
bool IsInTiles(Rows rows, int scale, int x, int y) {
    const auto row = static_cast<std::size_t>(y / scale);
    return y >= 0 && row < rows.size() &&
           rows[row][static_cast<std::size_t>(x / scale) % rows[row].size()] == '#';
}

bool IsWave(int x, int y) {
    const double crest = 4 + 3 * std::sin(std::numbers::pi * x / 8);
    return std::abs(y - crest) < 1.5;
}

// Rays on the foot, narrower toward the top.
bool IsRay(int x, int y, int length) {
    constexpr int pitch = 16;
    return std::abs(x % pitch - pitch / 2) * length < y * pitch / 2;
}

bool IsGlazed(int x, int y) {
    if (y < 8 || y >= 108) return true;
    if (y < 12) return false;
    if (y < 24) return x % 8 < 5 && y < 22 - (x % 8 == 0 || x % 8 == 4);
    if (y < 41) return IsInTiles(meander, 1, x, y - 25);
    if (y < 70) return IsInTiles(fish, 2, x + 32, y - 43);
    if (y < 74) return y >= 71 && y < 73;
    if (y < 84) return IsWave(x, y - 74);
    if (y < 88) return y >= 85 && y < 87;
    return IsRay(x, y - 90, 18);
}

} // namespace

Texture UrnSkin::Draw(const ColorList& palette) {
    const Paint paint(palette);
    const TileNoise noise(71);
    Texture skin(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const double u = (x + 0.5) / width;
            const double rough = noise.At(u, (y + 0.5) / height, 32, 16, 3) - 0.5;
            // Lighter on one side, as if lit by a lamp.
            const double light = 0.1 * std::cos(2 * std::numbers::pi * (u - 0.4));
            const bool glazed = IsGlazed(x, y);
            skin.SetPixel(x, y,
                          paint(glazed ? glaze : clay, (glazed ? 0.4 : 0.85) + 0.5 * rough + light,
                                noise.AtCell(x, y)));
        }
    return skin;
}

} // namespace keltavlo
