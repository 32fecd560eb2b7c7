#include "SampleTextures.h"

#include "BrickWall.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace keltavlo {

namespace {

constexpr std::uint32_t lightSurface = 1;
constexpr std::uint32_t warpSurface = 8;
constexpr std::uint32_t allFlags = 0xFFFFFFFF;
constexpr std::uint32_t solidContents = 1;
constexpr std::uint32_t lavaContents = 8;

constexpr double fullTurn = 2 * std::numbers::pi;

template <class ColorAt>
Texture Draw(const std::string& name, int side, ColorAt&& colorAt) {
    Texture texture(side, side);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) texture.SetPixel(x, y, colorAt(x, y));
    texture.quake2.name = nameFolder + name;
    texture.quake2.contents = solidContents;
    return texture;
}

Texture DrawBrick(const Paint& paint) {
    const BrickWall wall(paint);
    return Draw("brick", BrickWall::side, [&](int x, int y) { return wall.At(x, y); });
}

Texture DrawStone(const Paint& paint) {
    constexpr int side = 64;
    constexpr Ramp stone{144, 16};
    const TileNoise noise(21);
    return Draw("stone", side, [&](int x, int y) {
        const double u = (x + 0.5) / side;
        const double v = (y + 0.5) / side;
        const double brightness = 0.5 + 0.9 * (noise.At(u, v, 6, 6, 4) - 0.5);
        // Cracks appear where another noise crosses its middle.
        const double crack = std::abs(noise.At(v, u, 3, 3, 3) - 0.5);
        return paint(stone, crack < 0.012 ? brightness - 0.35 : brightness, noise.AtCell(x, y));
    });
}

Texture DrawFloor(const Paint& paint) {
    constexpr int side = 128;
    constexpr int plank = 32; // texels across
    constexpr Ramp wood{80, 14};
    const TileNoise noise(31);
    return Draw("floor", side, [&](int x, int y) {
        const int column = x / plank;
        const double v = (y + 0.5) / side;
        const int buttJoint = static_cast<int>(noise.AtCell(column, 99) * side);
        if (x % plank == 0 || y == buttJoint) return paint(wood, 0.05, noise.AtCell(x, y));
        // The grain runs along the plank, bent by slow waves, and differs in each plank.
        const double bend = 0.04 * std::sin(fullTurn * (v + noise.AtCell(column, 77)));
        const double fibres = noise.At(static_cast<double>(x) / side + bend, v, 32, 2, 3);
        const double edge = x % plank == 1 ? 0.15 : x % plank == plank - 1 ? -0.2 : 0;
        const double shade = 0.25 * (noise.AtCell(column, 55) - 0.5);
        return paint(wood, 0.55 + shade + 0.9 * (fibres - 0.5) + edge, noise.AtCell(x, y));
    });
}

// Brighter from left to right and from top to bottom, so that tiling shows its borders.
Texture DrawSeam(const Paint& paint) {
    constexpr int side = 64;
    constexpr Ramp metal{32, 14};
    const TileNoise noise(41);
    return Draw("seam", side, [&](int x, int y) {
        const double slope = static_cast<double>(x + y) / (2 * side);
        const double rough = noise.At(static_cast<double>(x) / side, static_cast<double>(y) / side, 8, 8, 3);
        return paint(metal, 0.2 + 0.6 * slope + 0.5 * (rough - 0.5), noise.AtCell(x, y));
    });
}

// Crusts that drift over the glow; each frame moves them by a quarter of the texture.
Texture DrawLava(const Paint& paint, int frame, int frameCount) {
    constexpr int side = 64;
    constexpr Ramp fire{221, 17};
    const TileNoise noise(51);
    const TileNoise glowNoise(52);
    const double drift = static_cast<double>(frame) / frameCount;
    const auto name = [&](int number) { return "lava" + std::to_string(number % frameCount + 1); };
    Texture lava = Draw(name(frame), side, [&](int x, int y) {
        const double u = (x + 0.5) / side;
        const double v = (y + 0.5) / side;
        const double crust = noise.At(u, v + drift, 4, 4, 3);
        const double glow = glowNoise.At(u - drift, v, 4, 4, 3);
        return paint(fire, 1 - 5 * std::abs(crust - glow), 0.6 * noise.AtCell(x, y));
    });
    lava.quake2.nextFrameName = nameFolder + name(frame + 1);
    lava.quake2.surfaceFlags = lightSurface | warpSurface;
    lava.quake2.contents = lavaContents;
    lava.quake2.value = 250;
    return lava;
}

// Warning stripes. Every surface flag is set, so that each check box can be tried.
Texture DrawFlags(const Paint& paint) {
    constexpr int side = 64;
    constexpr Ramp yellow{56, 8};
    constexpr Ramp black{40, 6};
    const TileNoise noise(61);
    Texture flags = Draw("flags", side, [&](int x, int y) {
        const bool isYellow = (x + y) % (side / 2) < side / 4;
        const double rough = noise.At(static_cast<double>(x) / side, static_cast<double>(y) / side, 8, 8, 3);
        return paint(isYellow ? yellow : black, 0.7 + 1.2 * (rough - 0.5), noise.AtCell(x, y));
    });
    flags.quake2.surfaceFlags = allFlags;
    return flags;
}

} // namespace

std::vector<Texture> DrawSampleTextures(const ColorList& palette) {
    constexpr int lavaFrames = 4;
    const Paint paint(palette);
    std::vector<Texture> textures;
    for (const auto draw : {DrawBrick, DrawStone, DrawFloor, DrawSeam, DrawFlags})
        textures.push_back(draw(paint));
    for (int frame = 0; frame < lavaFrames; ++frame) textures.push_back(DrawLava(paint, frame, lavaFrames));
    return textures;
}

} // namespace keltavlo
